// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/SqlArchive.h"

#include "platform/archive/IdList.h"
#include "platform/archive/SqlEntry.h"
#include "platform/archive/Where.h"

#include <QSqlError>
#include <QVariant>

#include <unordered_map>
#include <utility>

namespace tally {

using archive::Entry;
using archive::Id;
using archive::Selection;

namespace {

std::string bytesAt(const QSqlQuery& query, int column) {
    return query.value(column).toByteArray().toStdString();
}

} // namespace

SqlArchive::SqlArchive(std::unique_ptr<Connection> connection, const archive::ArchiveTools& tools)
    : connection_(std::move(connection)), tools_(tools) {}

std::vector<Entry> SqlArchive::find(const Selection& selection) {
    const Where where = whereOf(selection, connection_->engine(), tools_);
    std::string sql = "SELECT " + rows::entryColumns() + " FROM recording" + where.condition +
                      " ORDER BY station_key, circuit_key, starts, added, id";
    // An id is looked for by hand among those that share its first 63 bits.
    if (selection.maximum > 0 && !selection.id)
        sql += " LIMIT " + std::to_string(selection.maximum);
    std::vector<Entry> entries;
    QSqlQuery& query = connection_->run(sql, where.values);
    while (connection_->next(query)) {
        Entry entry = rows::entryFrom(query);
        if (!selection.id || selection.id->fits(entry.sha))
            entries.push_back(std::move(entry));
    }
    query.finish();
    return entries;
}

void SqlArchive::addSources(std::vector<Entry>& entries) {
    std::unordered_map<Id, Entry*> byId;
    std::vector<Id> ids;
    for (Entry& entry : entries) {
        entry.sources.clear();
        byId.emplace(entry.id, &entry);
        ids.push_back(entry.id);
    }
    inPortions(ids, [&](const std::string& list, const SqlRow& values) {
        QSqlQuery& query = connection_->run(
            "SELECT id, path, names FROM source WHERE id IN " + list + " ORDER BY id, place", values);
        while (connection_->next(query))
            byId.at(query.value(0).toLongLong())
                ->sources.push_back(rows::sourceFrom(query.value(1).toString().toStdString(),
                                                     query.value(2).toString().toStdString()));
        query.finish();
    });
}

std::vector<Entry> SqlArchive::page(std::int64_t after, std::size_t maximum) {
    std::vector<Entry> entries;
    QSqlQuery& query = connection_->run("SELECT " + rows::entryColumns() +
                                            " FROM recording WHERE added > ? ORDER BY added LIMIT ?",
                                        {after, static_cast<std::int64_t>(maximum)});
    while (connection_->next(query))
        entries.push_back(rows::entryFrom(query));
    query.finish();
    addSources(entries);
    return entries;
}

std::vector<archive::DaySpan> SqlArchive::spans(const Selection& selection) {
    const Where where = whereOf(selection, connection_->engine(), tools_);
    QSqlQuery& query = connection_->run(
        "SELECT DISTINCT first_day, last_day FROM recording" + where.condition, where.values);
    std::vector<archive::DaySpan> spans;
    while (connection_->next(query))
        spans.push_back({query.value(0).toInt(), query.value(1).toInt()});
    query.finish();
    return spans;
}

archive::Stats SqlArchive::stats() {
    archive::Stats stats;
    QSqlQuery& whole = connection_->run(
        "SELECT count(*), sum(readings), sum(size), min(first_day), max(last_day) FROM recording");
    if (connection_->next(whole) && whole.value(0).toLongLong() > 0) {
        stats.recordings = whole.value(0).toLongLong();
        stats.readings = whole.value(1).toLongLong();
        stats.bytes = whole.value(2).toLongLong();
        stats.days = archive::DaySpan{whole.value(3).toInt(), whole.value(4).toInt()};
    }
    whole.finish();
    stats.circuits =
        connection_->number("SELECT count(*) FROM (SELECT DISTINCT station_key, circuit_key FROM "
                            "recording WHERE circuit_key <> '') AS circuits");
    stats.stations =
        connection_->number("SELECT count(DISTINCT station_key) FROM recording WHERE station_key <> ''");
    return stats;
}

void SqlArchive::receiveBlobs(const std::string& table, const std::string& column, const std::vector<Id>& ids,
                              const Receive& receive) {
    inPortions(ids, [&](const std::string& list, const SqlRow& values) {
        QSqlQuery& query =
            connection_->run("SELECT id, " + column + " FROM " + table + " WHERE id IN " + list, values);
        while (connection_->next(query)) {
            const QByteArray bytes = query.value(1).toByteArray();
            receive(query.value(0).toLongLong(),
                    std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        }
        query.finish();
    });
}

void SqlArchive::dayFigures(const std::vector<Id>& ids, const Receive& receive) {
    receiveBlobs("daily", "figures", ids, receive);
}

void SqlArchive::readings(const std::vector<Id>& ids, const Receive& receive) {
    receiveBlobs("body", "readings", ids, receive);
}

std::optional<archive::Body> SqlArchive::body(Id id) {
    archive::Body body;
    QSqlQuery& query = connection_->run("SELECT bytes, notes, readings FROM body WHERE id = ?", {id});
    const bool found = connection_->next(query);
    if (found) {
        body.bytes = bytesAt(query, 0);
        if (!query.value(1).isNull())
            body.notesFile = bytesAt(query, 1);
        body.readings = bytesAt(query, 2);
    }
    query.finish();
    if (!found)
        return std::nullopt;
    QSqlQuery& daily = connection_->run("SELECT figures FROM daily WHERE id = ?", {id});
    if (connection_->next(daily))
        body.days = bytesAt(daily, 0);
    daily.finish();
    return body;
}

std::optional<Entry> SqlArchive::entry(Id id) {
    std::vector<Entry> entries;
    QSqlQuery& query =
        connection_->run("SELECT " + rows::entryColumns() + " FROM recording WHERE id = ?", {id});
    if (connection_->next(query))
        entries.push_back(rows::entryFrom(query));
    query.finish();
    if (entries.empty())
        return std::nullopt;
    addSources(entries);
    return std::move(entries.front());
}

} // namespace tally
