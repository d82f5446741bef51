// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "platform/archive/Connection.h"

namespace tally {

// The archive in a database, on SQLite and on PostgreSQL by the same statements.
class SqlArchive : public archive::ArchiveStore {
public:
    // On an open connection to an archive of the current version.
    SqlArchive(std::unique_ptr<Connection> connection, const archive::ArchiveTools& tools);

    std::vector<bool> add(const std::vector<archive::Kept>& recordings) override;
    bool assign(archive::Id id, const std::string& station, const std::string& circuit) override;
    bool remove(archive::Id id) override;

    std::vector<archive::Entry> find(const archive::Selection& selection) override;
    void addSources(std::vector<archive::Entry>& entries) override;
    std::vector<archive::Entry> page(std::int64_t after, std::size_t maximum) override;
    std::vector<archive::DaySpan> spans(const archive::Selection& selection) override;
    archive::Stats stats() override;
    void dayFigures(const std::vector<archive::Id>& ids, const Receive& receive) override;
    void readings(const std::vector<archive::Id>& ids, const Receive& receive) override;
    std::optional<archive::Body> body(archive::Id id) override;
    void backup(const std::string& path) override;

private:
    struct Known;

    std::vector<bool> addOnce(const std::vector<archive::Kept>& recordings);
    std::map<archive::Id, Known> known(const std::vector<archive::Kept>& recordings);
    void addAgain(const archive::Kept& again, Known& known, std::int64_t place);
    void requireWriting() const;
    void rewriteWords(archive::Id id);
    std::optional<archive::Entry> entry(archive::Id id);
    void receiveBlobs(const std::string& table, const std::string& column,
                      const std::vector<archive::Id>& ids, const Receive& receive);

    std::unique_ptr<Connection> connection_;
    const archive::ArchiveTools& tools_;
};

} // namespace tally
