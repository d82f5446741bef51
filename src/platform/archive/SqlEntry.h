// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "platform/archive/SqlValue.h"

#include <QSqlQuery>

#include <string>
#include <vector>

namespace tally {

// How a recording stands in the tables.
namespace rows {

// The columns of `recording`, with commas, in the order in which entryFrom() reads them.
const std::string& entryColumns();
archive::Entry entryFrom(const QSqlQuery& query);

// Rows of all tables for new recordings.
class NewRows {
public:
    explicit NewRows(const archive::ArchiveTools& tools);
    // `added`: its place in the order of adding.
    void add(const archive::Kept& kept, std::int64_t added);
    // In the order in which they are to be written.
    const std::vector<SqlRows>& tables() const { return tables_; }

private:
    const archive::ArchiveTools& tools_;
    std::vector<SqlRows> tables_;
};

// Where a recording came from.
SqlRow sourceRow(archive::Id id, std::int64_t place, const archive::Source& source);
archive::Source sourceFrom(const std::string& path, const std::string& names);

// Four notes as one text.
std::string notesText(const Notes& notes);

// How names are compared: as folded, without blanks around them.
std::string nameKey(const std::string& name, const archive::ArchiveTools& tools);

} // namespace rows
} // namespace tally
