// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/Partitions.h"

#include <array>

namespace tally {

using archive::Engine;
using archive::Place;
using archive::StoreFault;
using archive::StoreTrouble;

namespace {

constexpr std::array<const char*, 5> splitTables = {"recording", "source", "words", "daily", "body"};

// A text constant: statements that make things take no bound values.
std::string quoted(const std::string& text) {
    std::string constant = "'";
    for (const char c : text)
        constant += c == '\'' ? std::string("''") : std::string(1, c);
    return constant + "'";
}

std::int64_t countTables(Connection& connection) {
    return connection.number(
        "SELECT count(*) FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n "
        "ON n.oid = c.relnamespace WHERE n.nspname = 'tallyline' AND c.relkind IN ('r', 'p')");
}

// The tables of one partition. Those of an earlier try that came to nothing are taken as they are, when
// empty.
void createPartition(const Place& place) {
    Connection connection(place, Connection::Mode::write);
    Transaction transaction(connection);
    if (countTables(connection) > 0) {
        const bool used = lookAt(connection).found == Found::archive ||
                          connection.number("SELECT count(*) FROM recording") > 0;
        if (used)
            throw StoreFault(StoreTrouble::other,
                             "There is an archive on this server already: " + place.text());
        return;
    }
    connection.execute("CREATE SCHEMA IF NOT EXISTS tallyline");
    for (const std::string& statement : tableStatements(Engine::postgresql, Keys::own))
        connection.execute(statement);
    transaction.commit();
}

// The limits keep a server that is out of reach from being waited for; the estimates keep the planner from
// fetching whole tables.
std::string serverStatement(const std::string& name, const Place& place) {
    return "CREATE SERVER " + name + " FOREIGN DATA WRAPPER postgres_fdw OPTIONS (host " +
           quoted(place.host) + ", port " + quoted(std::to_string(place.port)) + ", dbname " +
           quoted(place.database) +
           ", connect_timeout '2', tcp_user_timeout '4000', use_remote_estimate 'true', fetch_size '10000', "
           "batch_size '100')";
}

std::string mappingStatement(const std::string& name, const Place& place, bool superuser) {
    std::string options = place.user.empty() ? "" : "user " + quoted(place.user);
    // The password comes from the password file of the coordinator, or the partition trusts it.
    if (superuser)
        options += std::string(options.empty() ? "" : ", ") + "password_required 'false'";
    return "CREATE USER MAPPING FOR PUBLIC SERVER " + name +
           (options.empty() ? "" : " OPTIONS (" + options + ")");
}

std::vector<std::string> partitionStatements(const Place& place, std::size_t number, std::size_t count,
                                             bool superuser) {
    const std::string server = "tallyline_" + std::to_string(number + 1);
    std::vector<std::string> statements = {serverStatement(server, place),
                                           mappingStatement(server, place, superuser)};
    for (const std::string table : splitTables)
        statements.push_back("CREATE FOREIGN TABLE " + table + "_" + std::to_string(number + 1) +
                             " PARTITION OF " + table + " FOR VALUES WITH (MODULUS " + std::to_string(count) +
                             ", REMAINDER " + std::to_string(number) + ") SERVER " + server +
                             " OPTIONS (schema_name 'tallyline', table_name " + quoted(table) + ")");
    return statements;
}

} // namespace

void createSplitArchive(Connection& connection, const Schema& schema, const std::vector<Place>& partitions) {
    for (const Place& place : partitions)
        createPartition(place);
    const bool superuser =
        connection.number(
            "SELECT count(*) FROM pg_catalog.pg_roles WHERE rolname = current_user AND rolsuper") > 0;
    std::vector<std::string> statements = {"CREATE EXTENSION IF NOT EXISTS postgres_fdw WITH SCHEMA public"};
    for (const std::string& statement : tableStatements(Engine::postgresql, Keys::split))
        statements.push_back(statement);
    for (std::size_t number = 0; number < partitions.size(); ++number)
        for (std::string& statement :
             partitionStatements(partitions[number], number, partitions.size(), superuser))
            statements.push_back(std::move(statement));
    createArchive(connection, schema, statements);
}

} // namespace tally
