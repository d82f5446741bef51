// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/PgCopy.h"

#include <array>
#include <memory>
#include <string_view>

namespace tally {

namespace {

constexpr std::string_view signature = std::string_view("PGCOPY\n\xFF\r\n\0", 11);
// Enough for a system call to be worth while, little enough to stay in the cache.
constexpr std::size_t chunkBytes = std::size_t{256} << 10;

using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

template <typename Number>
void putNetwork(std::string& bytes, Number number) {
    for (int shift = static_cast<int>(sizeof(Number)) * 8 - 8; shift >= 0; shift -= 8)
        bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> shift & 0xFF);
}

void putField(std::string& bytes, std::string_view field) {
    putNetwork(bytes, static_cast<std::int32_t>(field.size()));
    bytes += field;
}

void putValue(std::string& bytes, const SqlValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        putNetwork(bytes, static_cast<std::int32_t>(sizeof(std::int64_t)));
        putNetwork(bytes, *number);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        putField(bytes, *text);
    } else if (const auto* blob = std::get_if<Blob>(&value)) {
        putField(bytes, blob->bytes);
    } else {
        putNetwork(bytes, std::int32_t{-1});
    }
}

PgFailure failureOf(PGconn* connection, const PGresult* result) {
    const char* code = result == nullptr ? nullptr : PQresultErrorField(result, PG_DIAG_SQLSTATE);
    return {QString::fromLatin1(code == nullptr ? "" : code), QString::fromUtf8(PQerrorMessage(connection))};
}

bool send(PGconn* connection, std::string& bytes) {
    const bool sent = PQputCopyData(connection, bytes.data(), static_cast<int>(bytes.size())) == 1;
    bytes.clear();
    return sent;
}

bool sendRows(PGconn* connection, const SqlRows& rows) {
    std::string bytes(signature);
    putNetwork(bytes, std::int32_t{0}); // no flags
    putNetwork(bytes, std::int32_t{0}); // no more header
    for (const SqlRow& row : rows.rows) {
        putNetwork(bytes, static_cast<std::int16_t>(row.size()));
        for (const SqlValue& value : row)
            putValue(bytes, value);
        if (bytes.size() > chunkBytes && !send(connection, bytes))
            return false;
    }
    putNetwork(bytes, std::int16_t{-1}); // no more rows
    return send(connection, bytes);
}

} // namespace

std::optional<PgFailure> pgCopy(PGconn* connection, const SqlRows& rows) {
    std::string sql = std::string("COPY ") + rows.table + " (";
    for (std::size_t at = 0; at < rows.columns.size(); ++at)
        sql += std::string(at == 0 ? "" : ", ") + rows.columns[at];
    sql += ") FROM STDIN (FORMAT binary)";
    const Result begun(PQexec(connection, sql.c_str()), &PQclear);
    if (PQresultStatus(begun.get()) != PGRES_COPY_IN)
        return failureOf(connection, begun.get());
    const bool sent = sendRows(connection, rows);
    const bool ended = PQputCopyEnd(connection, sent ? nullptr : "not all rows could be sent") == 1;
    std::optional<PgFailure> failure;
    // To the last result, or the connection would still be busy with this statement.
    for (Result result(PQgetResult(connection), &PQclear); result; result.reset(PQgetResult(connection)))
        if (PQresultStatus(result.get()) != PGRES_COMMAND_OK && !failure)
            failure = failureOf(connection, result.get());
    if (!failure && !(sent && ended))
        failure = failureOf(connection, nullptr);
    return failure;
}

} // namespace tally
