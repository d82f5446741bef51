// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/SqlArchive.h"

#include "platform/archive/IdList.h"
#include "platform/archive/SqlEntry.h"

#include <QSqlError>
#include <QVariant>

#include <algorithm>
#include <chrono>
#include <set>
#include <thread>

namespace tally {

using archive::Entry;
using archive::Id;
using archive::Kept;
using archive::StoreFault;
using archive::StoreTrouble;

namespace {

// A server that is stopped and started again is back within seconds.
constexpr int lostTries = 8;
constexpr std::chrono::milliseconds betweenTries(500);
constexpr int clashTries = 5;

constexpr const char* sameKey = "Two recordings whose contents differ have the same key in the archive";

} // namespace

// A recording that the archive has before a batch.
struct SqlArchive::Known {
    std::string sha;
    bool noted = false;
    std::set<std::string> paths;
};

void SqlArchive::requireWriting() const {
    if (!connection_->writable())
        throw StoreFault(StoreTrouble::readOnly,
                         "The archive is read-only (" + connection_->place().text() + ")");
}

std::vector<bool> SqlArchive::add(const std::vector<Kept>& recordings) {
    requireWriting();
    int lost = 0;
    int clashes = 0;
    for (;;) {
        try {
            if (lost > 0)
                connection_->reconnect();
            return addOnce(recordings);
        } catch (const StoreFault& fault) {
            // The batch was not acknowledged; what of it is there already will be found there.
            const bool again = fault.trouble() == StoreTrouble::lost    ? ++lost <= lostTries
                               : fault.trouble() == StoreTrouble::clash ? ++clashes <= clashTries
                                                                        : false;
            if (!again || connection_->engine() == archive::Engine::sqlite)
                throw;
            if (lost > 0)
                std::this_thread::sleep_for(betweenTries);
        }
    }
}

std::map<Id, SqlArchive::Known> SqlArchive::known(const std::vector<Kept>& recordings) {
    std::vector<Id> ids;
    for (const Kept& kept : recordings)
        ids.push_back(kept.entry.id);
    std::map<Id, Known> found;
    inPortions(ids, [&](const std::string& list, const SqlRow& values) {
        QSqlQuery& query =
            connection_->run("SELECT id, sha, noted FROM recording WHERE id IN " + list, values);
        while (connection_->next(query))
            found[query.value(0).toLongLong()] = {
                query.value(1).toByteArray().toStdString(), query.value(2).toInt() != 0, {}};
        query.finish();
    });
    ids.clear();
    for (const auto& [id, known] : found)
        ids.push_back(id);
    inPortions(ids, [&](const std::string& list, const SqlRow& values) {
        QSqlQuery& query = connection_->run("SELECT id, path FROM source WHERE id IN " + list, values);
        while (connection_->next(query))
            found[query.value(0).toLongLong()].paths.insert(query.value(1).toString().toStdString());
        query.finish();
    });
    return found;
}

std::vector<bool> SqlArchive::addOnce(const std::vector<Kept>& recordings) {
    Transaction transaction(*connection_);
    std::map<Id, Known> there = known(recordings);
    std::int64_t added = connection_->number("SELECT value FROM state WHERE name = 'added'");
    std::vector<bool> isNew;
    std::vector<const Kept*> again;
    rows::NewRows fresh(tools_);
    for (const Kept& kept : recordings) {
        const auto [place, inserted] = there.try_emplace(kept.entry.id);
        if (!inserted && place->second.sha != kept.entry.sha)
            throw StoreFault(StoreTrouble::damaged, sameKey);
        isNew.push_back(inserted);
        if (!inserted) {
            again.push_back(&kept);
            continue;
        }
        fresh.add(kept, ++added);
        place->second = {kept.entry.sha, kept.notesFile.has_value(), {kept.entry.sources.front().path}};
    }
    for (const SqlRows& table : fresh.tables())
        connection_->insert(table);
    for (const Kept* kept : again)
        addAgain(*kept, there[kept->entry.id], 0);
    connection_->run("UPDATE state SET value = ? WHERE name = 'added'", {added});
    transaction.commit();
    return isNew;
}

void SqlArchive::addAgain(const Kept& again, Known& known, std::int64_t) {
    const Entry& entry = again.entry;
    bool changed = false;
    for (const archive::Source& source : entry.sources) {
        if (!known.paths.insert(source.path).second)
            continue;
        const SqlRow row =
            rows::sourceRow(entry.id, static_cast<std::int64_t>(known.paths.size()) - 1, source);
        connection_->run("INSERT INTO source (id, place, path, names) VALUES (?, ?, ?, ?)", row);
        changed = true;
    }
    if (again.notesFile && !known.noted) {
        known.noted = true;
        connection_->run("UPDATE body SET notes = ? WHERE id = ?", {Blob{*again.notesFile}, entry.id});
        connection_->run("UPDATE recording SET noted = 1, notes = ? WHERE id = ?",
                         {rows::notesText(entry.notes), entry.id});
        // Names that somebody assigned stay.
        connection_->run("UPDATE recording SET station = ?, station_key = ?, circuit = ?, circuit_key = ? "
                         "WHERE id = ? AND assigned = 0",
                         {entry.belonging.station, rows::nameKey(entry.belonging.station, tools_),
                          entry.belonging.circuit, rows::nameKey(entry.belonging.circuit, tools_), entry.id});
        changed = true;
    }
    if (changed)
        rewriteWords(entry.id);
}

void SqlArchive::rewriteWords(Id id) {
    if (const auto now = entry(id))
        connection_->run("UPDATE words SET text = ? WHERE id = ?", {archive::searchText(*now, tools_), id});
}

bool SqlArchive::assign(Id id, const std::string& station, const std::string& circuit) {
    requireWriting();
    Transaction transaction(*connection_);
    if (!entry(id))
        return false;
    connection_->run(
        "UPDATE recording SET station = ?, station_key = ?, circuit = ?, circuit_key = ?, assigned = 1 "
        "WHERE id = ?",
        {station, rows::nameKey(station, tools_), circuit, rows::nameKey(circuit, tools_), id});
    rewriteWords(id);
    transaction.commit();
    return true;
}

bool SqlArchive::remove(Id id) {
    requireWriting();
    Transaction transaction(*connection_);
    if (!entry(id))
        return false;
    for (const char* table : {"recording", "source", "words", "daily", "body"})
        connection_->run(std::string("DELETE FROM ") + table + " WHERE id = ?", {id});
    transaction.commit();
    return true;
}

} // namespace tally
