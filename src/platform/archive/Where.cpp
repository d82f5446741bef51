// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/Where.h"

#include "platform/archive/Dialect.h"
#include "platform/archive/SqlEntry.h"

namespace tally {

using archive::Selection;

namespace {

class Conditions {
public:
    void add(const std::string& condition, SqlRow values) {
        where_.condition += (where_.condition.empty() ? " WHERE " : " AND ") + condition;
        for (SqlValue& value : values)
            where_.values.push_back(std::move(value));
    }
    Where take() { return std::move(where_); }

private:
    Where where_;
};

void addWords(Conditions& all, const Selection& selection, archive::Engine engine,
              const archive::ArchiveTools& tools) {
    std::string each;
    SqlRow values;
    for (const std::string& word : selection.words) {
        each += (each.empty() ? "" : " AND ") + dialect::holdsWord(engine, "text");
        values.emplace_back(dialect::wordValue(engine, tools.fold(word)));
    }
    if (!each.empty())
        all.add("id IN (SELECT id FROM words WHERE " + each + ")", std::move(values));
}

} // namespace

Where whereOf(const Selection& selection, archive::Engine engine, const archive::ArchiveTools& tools) {
    Conditions all;
    const auto addName = [&](const char* column, const std::optional<std::string>& name) {
        if (name)
            all.add(std::string(column) + " = ?", {rows::nameKey(*name, tools)});
    };
    addName("serial_key", selection.serial);
    addName("station_key", selection.station);
    addName("circuit_key", selection.circuit);
    if (selection.unit)
        all.add("unit = ?", {std::string(1, *selection.unit)});
    if (selection.from)
        all.add("last_day >= ?", {std::int64_t{*selection.from}});
    if (selection.to)
        all.add("first_day <= ?", {std::int64_t{*selection.to}});
    if (selection.id)
        all.add("id BETWEEN ? AND ?", {selection.id->lowest(), selection.id->highest()});
    addWords(all, selection, engine, tools);
    return all.take();
}

} // namespace tally
