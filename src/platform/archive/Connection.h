// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Place.h"
#include "archive/StoreFault.h"
#include "platform/archive/SqlValue.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tally {

// One connection to a database, for the thread that makes it. Statements are prepared once and kept. Every
// failure is thrown as StoreFault.
class Connection {
public:
    // How an SQLite file is opened.
    enum class Mode { write, read, immutable };

    // Throws StoreFault when the database is not there or out of reach (within 5 s).
    Connection(archive::Place place, Mode mode);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    archive::Engine engine() const { return place_.engine; }
    const archive::Place& place() const { return place_; }
    bool writable() const { return mode_ == Mode::write; }

    // Runs a statement with values bound to its "?"; gives its rows, to be read before the next call of the
    // same statement.
    QSqlQuery& run(const std::string& sql, const SqlRow& values = {});
    // Goes on to the next row; false after the last one. Rows that cannot be read are no end of them: throws.
    bool next(QSqlQuery& query) const;
    // The first value of the first row as a number; 0 without a row.
    std::int64_t number(const std::string& sql, const SqlRow& values = {});
    // Runs statements that stand alone (no values, not kept).
    void execute(const std::string& sql);
    // Writes rows by the quickest way of the engine.
    void insert(const SqlRows& rows);

    // Closes and opens again, after the server went away; prepared statements are void then.
    void reconnect();

    archive::StoreFault fault(const QSqlError& error) const;

private:
    void open();
    QSqlQuery& prepared(const std::string& sql);
    void insertOneByOne(const SqlRows& rows);
    void copyIn(const SqlRows& rows);

    archive::Place place_;
    Mode mode_;
    QString name_;
    QSqlDatabase database_;
    std::map<std::string, std::unique_ptr<QSqlQuery>> queries_;
};

// A transaction that is taken back unless it is committed. Only one writer is in one at a time.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    Connection& connection_;
    bool open_ = true;
};

} // namespace tally
