// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/Schema.h"

#include "platform/archive/Dialect.h"

#include <QFile>
#include <QVariant>

namespace tally {

using archive::Engine;
using archive::StoreFault;
using archive::StoreTrouble;

namespace {

// "TLAR": tells an archive from every other SQLite file.
constexpr std::int64_t applicationId = 0x544C4152;

constexpr const char* stateTable = "CREATE TABLE state (name TEXT PRIMARY KEY, value BIGINT NOT NULL)";

// `recording` holds what questions narrow by; its rows stay small, so that the whole table is read quickly.
constexpr const char* recordingTable = R"(CREATE TABLE recording (
    id {key}, sha {blob} NOT NULL, added BIGINT NOT NULL,
    serial TEXT NOT NULL, serial_key {name} NOT NULL,
    station TEXT NOT NULL, station_key {name} NOT NULL,
    circuit TEXT NOT NULL, circuit_key {name} NOT NULL, assigned BIGINT NOT NULL, noted BIGINT NOT NULL,
    unit TEXT NOT NULL, mode TEXT NOT NULL, minutes BIGINT NOT NULL,
    starts BIGINT NOT NULL, ends BIGINT NOT NULL, first_day BIGINT NOT NULL, last_day BIGINT NOT NULL,
    readings BIGINT NOT NULL, lowest BIGINT NOT NULL, size BIGINT NOT NULL,
    points BIGINT NOT NULL, total BIGINT NOT NULL, highest BIGINT NOT NULL, highest_at BIGINT NOT NULL,
    blocks BIGINT NOT NULL, block_total BIGINT NOT NULL, block_highest BIGINT NOT NULL,
    notes TEXT NOT NULL))";

constexpr const char* sourceTable = R"(CREATE TABLE source (
    id BIGINT NOT NULL, place BIGINT NOT NULL, path TEXT NOT NULL, names TEXT NOT NULL{pair}))";

constexpr const char* wordsTable = "CREATE TABLE words (id {key}, text TEXT NOT NULL)";
constexpr const char* dailyTable = "CREATE TABLE daily (id {key}, figures {blob} NOT NULL)";
// The packed readings first: SQLite reads them without what comes after.
constexpr const char* bodyTable = R"(CREATE TABLE body (
    id {key}, readings {blob} NOT NULL, bytes {blob} NOT NULL, notes {blob}))";

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

std::vector<std::string> indexStatements() {
    return {"CREATE INDEX recording_circuit ON recording (circuit_key)",
            "CREATE INDEX recording_station ON recording (station_key)",
            "CREATE INDEX recording_serial ON recording (serial_key)",
            "CREATE INDEX recording_days ON recording (last_day, first_day)",
            "CREATE INDEX recording_added ON recording (added)"};
}

// The state of the whole, which stands on one server whatever is split.
std::vector<std::string> stateStatements(Engine engine) {
    std::vector<std::string> statements = {stateTable, "INSERT INTO state (name, value) VALUES ('added', 0)"};
    if (engine == Engine::sqlite)
        statements.push_back("PRAGMA application_id = " + std::to_string(applicationId));
    else
        statements.emplace_back("INSERT INTO state (name, value) VALUES ('version', 1)");
    return statements;
}

FoundArchive lookAtFile(Connection& connection) {
    if (connection.number("PRAGMA application_id") == applicationId)
        return {Found::archive, static_cast<int>(connection.number("PRAGMA user_version"))};
    const bool empty = connection.number("SELECT count(*) FROM sqlite_master") == 0;
    return {empty ? Found::nothing : Found::foreign, 0};
}

FoundArchive lookAtServer(Connection& connection) {
    const auto exists = [&](const char* name) {
        return connection.number("SELECT count(*) FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n "
                                 "ON n.oid = c.relnamespace WHERE n.nspname = 'tallyline' AND c.relname = ?",
                                 {std::string(name)}) > 0;
    };
    if (exists("state") && exists("recording"))
        return {Found::archive,
                static_cast<int>(connection.number("SELECT value FROM state WHERE name = 'version'"))};
    const bool any =
        connection.number("SELECT count(*) FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n "
                          "ON n.oid = c.relnamespace WHERE n.nspname = 'tallyline'") > 0;
    return {any ? Found::foreign : Found::nothing, 0};
}

void setVersion(Connection& connection, int version) {
    if (connection.engine() == Engine::sqlite)
        connection.execute("PRAGMA user_version = " + std::to_string(version));
    else
        connection.run("UPDATE state SET value = ? WHERE name = 'version'", {std::int64_t{version}});
}

void runAll(Connection& connection, const std::vector<std::string>& statements) {
    for (const std::string& statement : statements)
        connection.execute(statement);
}

// False when there is an archive. Throws for a database of another program.
bool isEmptyPlace(Connection& connection) {
    const FoundArchive found = lookAt(connection);
    if (found.found == Found::foreign)
        throw StoreFault(StoreTrouble::other,
                         "This is a database of another program: " + connection.place().text());
    return found.found == Found::nothing;
}

// A copy that needs no knowledge of the older tables.
std::string backUp(Connection& connection, int version) {
    const std::string suffix = "version" + std::to_string(version);
    if (connection.engine() == Engine::sqlite) {
        const std::string path = connection.place().path + "." + suffix;
        QFile::remove(QString::fromStdString(path));
        connection.run("VACUUM INTO ?", {path});
        QFile::setPermissions(QString::fromStdString(path), QFile::ReadOwner | QFile::WriteOwner);
        return path;
    }
    const std::string schema = "tallyline_" + suffix;
    connection.execute("DROP SCHEMA IF EXISTS " + schema + " CASCADE");
    connection.execute("CREATE SCHEMA " + schema);
    for (const char* table : {"state", "recording", "source", "words", "daily", "body"})
        connection.execute("CREATE TABLE " + schema + "." + table + " AS TABLE tallyline." + table);
    return "schema " + schema;
}

} // namespace

const Schema& Schema::current() {
    static const Schema schema;
    return schema;
}

std::vector<std::string> tableStatements(Engine engine, Keys keys) {
    std::vector<std::string> statements;
    const bool whole = keys == Keys::own;
    for (std::string table : {recordingTable, sourceTable, wordsTable, dailyTable, bodyTable}) {
        table = replaced(table, "{blob}", dialect::blobType(engine));
        table = replaced(table, "{name}", dialect::nameType(engine));
        table = replaced(table, "{key}", whole ? dialect::keyType(engine) : "BIGINT NOT NULL");
        table = replaced(table, "{pair}", whole ? ", PRIMARY KEY (id, place)" : "");
        statements.push_back(table + (whole ? "" : " PARTITION BY HASH (id)"));
    }
    if (!whole)
        return statements;
    for (const auto& more : {indexStatements(), dialect::wordIndex(engine)})
        statements.insert(statements.end(), more.begin(), more.end());
    return statements;
}

FoundArchive lookAt(Connection& connection) {
    return connection.engine() == Engine::sqlite ? lookAtFile(connection) : lookAtServer(connection);
}

void createArchive(Connection& connection, const Schema& schema, const std::vector<std::string>& tables) {
    // Before anything is changed: a database of another program stays as it is.
    if (!isEmptyPlace(connection))
        return;
    if (connection.engine() == Engine::sqlite)
        connection.run("PRAGMA journal_mode = WAL").finish();
    Transaction transaction(connection);
    if (!isEmptyPlace(connection))
        return;
    if (connection.engine() == Engine::postgresql)
        connection.execute("CREATE SCHEMA IF NOT EXISTS tallyline");
    runAll(connection, stateStatements(connection.engine()));
    runAll(connection, tables);
    for (const auto& step : schema.steps)
        runAll(connection, step);
    setVersion(connection, schema.version);
    transaction.commit();
}

std::string moveUp(Connection& connection, const Schema& schema, int from) {
    // VACUUM INTO stands outside a transaction; on a server the backup is part of it.
    std::string backup;
    if (connection.engine() == Engine::sqlite)
        backup = backUp(connection, from);
    Transaction transaction(connection);
    const int now = lookAt(connection).version;
    if (now != from)
        return backup;
    if (connection.engine() == Engine::postgresql)
        backup = backUp(connection, from);
    for (auto version = from; version < schema.version; ++version)
        runAll(connection, schema.steps.at(static_cast<std::size_t>(version - 1)));
    setVersion(connection, schema.version);
    transaction.commit();
    return backup;
}

} // namespace tally
