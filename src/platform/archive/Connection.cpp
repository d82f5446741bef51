// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/Connection.h"

#include "platform/archive/PgCopy.h"
#include "platform/archive/ServerAddress.h"
#include "platform/archive/SqlErrors.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QUrl>
#include <QVariant>

#include <atomic>
#include <utility>

namespace tally {

using archive::Engine;
using archive::StoreFault;
using archive::StoreTrouble;

namespace {

// Another writer's batch takes a fraction of a second; one that takes longer has stopped.
constexpr int writerWait = 20000; // ms

// Any number will do; every program that writes into an archive asks for the same lock.
constexpr const char* writerLock = "SELECT pg_advisory_xact_lock(7205759403792)";

QString freshName() {
    static std::atomic<int> count = 0;
    return QStringLiteral("archive%1").arg(++count);
}

QVariant variantOf(const SqlValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value))
        return QVariant(static_cast<qlonglong>(*number));
    // Empty, but never null: a null text would break a column that must have one.
    if (const auto* text = std::get_if<std::string>(&value))
        return text->empty() ? QStringLiteral("") : QString::fromStdString(*text);
    if (const auto* blob = std::get_if<Blob>(&value))
        return QByteArray(blob->bytes.data(), static_cast<qsizetype>(blob->bytes.size()));
    return QVariant(QMetaType::fromType<QByteArray>());
}

void bind(QSqlQuery& query, const SqlRow& values) {
    for (std::size_t at = 0; at < values.size(); ++at)
        query.bindValue(static_cast<int>(at), variantOf(values[at]));
}

QString uriOf(const std::string& path, bool immutable) {
    const QByteArray encoded = QUrl::toPercentEncoding(QString::fromStdString(path), "/");
    return QStringLiteral("file:") + QString::fromLatin1(encoded) +
           (immutable ? QStringLiteral("?immutable=1") : QStringLiteral("?mode=ro"));
}

} // namespace

Connection::Connection(archive::Place place, Mode mode)
    : place_(std::move(place)), mode_(mode), name_(freshName()) {
    const QString driver =
        place_.engine == Engine::sqlite ? QStringLiteral("QSQLITE") : QStringLiteral("QPSQL");
    if (!QSqlDatabase::isDriverAvailable(driver))
        throw StoreFault(StoreTrouble::other,
                         "The database driver " + driver.toStdString() +
                             " is not installed (Debian: libqt6sql6-sqlite, libqt6sql6-psql)");
    database_ = QSqlDatabase::addDatabase(driver, name_);
    try {
        open();
    } catch (const StoreFault&) {
        database_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(name_);
        throw;
    }
}

Connection::~Connection() {
    queries_.clear();
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name_);
}

void Connection::open() {
    if (place_.engine == Engine::sqlite) {
        const bool reading = mode_ != Mode::write;
        database_.setDatabaseName(reading ? uriOf(place_.path, mode_ == Mode::immutable)
                                          : QString::fromStdString(place_.path));
        database_.setConnectOptions(
            QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1%2")
                .arg(writerWait)
                .arg(reading ? QStringLiteral(";QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI") : QString()));
        if (!database_.open())
            throw fault(database_.lastError());
        return;
    }
    database_.setHostName(QString::fromStdString(place_.host));
    database_.setPort(place_.port);
    database_.setDatabaseName(QString::fromStdString(place_.database));
    if (!place_.user.empty())
        database_.setUserName(QString::fromStdString(place_.user));
    openServer(database_, place_);
    execute("SET search_path TO tallyline, public");
    execute("SET client_min_messages TO warning");
    execute("SET enable_partitionwise_join TO on");
    execute("SET lock_timeout TO " + std::to_string(writerWait));
}

void Connection::reconnect() {
    queries_.clear();
    database_.close();
    open();
}

StoreFault Connection::fault(const QSqlError& error) const {
    return storeFault(place_.engine, error, place_.text());
}

QSqlQuery& Connection::prepared(const std::string& sql) {
    std::unique_ptr<QSqlQuery>& query = queries_[sql];
    if (query)
        return *query;
    auto fresh = std::make_unique<QSqlQuery>(database_);
    // PostgreSQL would lose the rest of a half-read result at the next statement.
    fresh->setForwardOnly(place_.engine == Engine::sqlite);
    if (!fresh->prepare(QString::fromStdString(sql))) {
        const QSqlError error = fresh->lastError();
        queries_.erase(sql);
        throw fault(error);
    }
    query = std::move(fresh);
    return *query;
}

QSqlQuery& Connection::run(const std::string& sql, const SqlRow& values) {
    QSqlQuery& query = prepared(sql);
    query.finish();
    bind(query, values);
    if (!query.exec())
        throw fault(query.lastError());
    return query;
}

bool Connection::next(QSqlQuery& query) const {
    if (query.next())
        return true;
    if (query.lastError().isValid())
        throw fault(query.lastError());
    return false;
}

std::int64_t Connection::number(const std::string& sql, const SqlRow& values) {
    QSqlQuery& query = run(sql, values);
    const std::int64_t value = next(query) ? query.value(0).toLongLong() : 0;
    query.finish();
    return value;
}

void Connection::execute(const std::string& sql) {
    QSqlQuery query(database_);
    if (!query.exec(QString::fromStdString(sql)))
        throw fault(query.lastError());
}

void Connection::insert(const SqlRows& rows) {
    if (rows.rows.empty())
        return;
    if (place_.engine == Engine::sqlite)
        insertOneByOne(rows);
    else
        copyIn(rows);
}

void Connection::insertOneByOne(const SqlRows& rows) {
    std::string columns;
    std::string places;
    for (const char* column : rows.columns) {
        columns += (columns.empty() ? "" : ", ") + std::string(column);
        places += places.empty() ? "?" : ", ?";
    }
    const std::string sql =
        "INSERT INTO " + std::string(rows.table) + " (" + columns + ") VALUES (" + places + ")";
    for (const SqlRow& row : rows.rows)
        run(sql, row);
}

void Connection::copyIn(const SqlRows& rows) {
    const QVariant handle = database_.driver()->handle();
    PGconn* connection = *static_cast<PGconn* const*>(handle.constData());
    if (const auto failure = pgCopy(connection, rows))
        throw storeFault(place_.engine, failure->code, failure->text, place_.text());
}

Transaction::Transaction(Connection& connection) : connection_(connection) {
    if (connection_.engine() == Engine::sqlite) {
        // A transaction that only becomes a writer later fails at once beside another writer.
        connection_.execute("BEGIN IMMEDIATE");
        return;
    }
    connection_.execute("BEGIN");
    try {
        connection_.execute(writerLock);
    } catch (const StoreFault&) {
        connection_.execute("ROLLBACK");
        throw;
    }
}

Transaction::~Transaction() {
    if (!open_)
        return;
    try {
        connection_.execute("ROLLBACK");
    } catch (const StoreFault&) {
        // A full disk or a lost server has taken the transaction back already.
        return;
    }
}

void Transaction::commit() {
    connection_.execute("COMMIT");
    open_ = false;
}

} // namespace tally
