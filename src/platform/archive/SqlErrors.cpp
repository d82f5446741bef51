// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/SqlErrors.h"

#include <array>
#include <string_view>

namespace tally {

using archive::Engine;
using archive::StoreFault;
using archive::StoreTrouble;

namespace {

struct Meaning {
    std::string_view code; // how the engine's code begins
    StoreTrouble trouble;
    const char* words;
};

constexpr const char* fullWords = "The disk of the archive is full; what was acknowledged is there";
constexpr const char* readOnlyWords = "The archive is read-only";
constexpr const char* busyWords = "Another program is writing into the archive and does not come to an end";
constexpr const char* damagedWords = "The archive is damaged";
constexpr const char* lostWords = "The archive's server is out of reach";
constexpr const char* clashWords = "Two programs got into each other's way in the archive; try again";
constexpr const char* rightsWords = "This user may not do that in the archive";

// Codes of SQLite: the lowest byte is the kind.
constexpr std::array<std::pair<int, Meaning>, 9> sqliteMeanings = {{
    {13, {"", StoreTrouble::full, fullWords}},
    {8, {"", StoreTrouble::readOnly, readOnlyWords}},
    {14, {"", StoreTrouble::readOnly, "The archive cannot be opened for writing"}},
    {3, {"", StoreTrouble::readOnly, readOnlyWords}},
    {5, {"", StoreTrouble::busy, busyWords}},
    {6, {"", StoreTrouble::busy, busyWords}},
    {11, {"", StoreTrouble::damaged, damagedWords}},
    {26, {"", StoreTrouble::damaged, "The file is no archive"}},
    {10, {"", StoreTrouble::other, "The disk of the archive reports an error"}},
}};

// SQLSTATE of PostgreSQL; the first that fits counts.
constexpr std::array<Meaning, 17> postgresqlMeanings = {{
    {"28P01", StoreTrouble::other, "The server refuses the password (PGPASSWORD or the password file)"},
    {"28", StoreTrouble::other, "The server refuses this user"},
    {"3D000", StoreTrouble::other, "There is no such database on the server; make it with createdb"},
    {"53100", StoreTrouble::full, fullWords},
    {"53", StoreTrouble::lost, "The archive's server has no room for another connection"},
    {"25006", StoreTrouble::readOnly, readOnlyWords},
    {"42501", StoreTrouble::readOnly, rightsWords},
    // The tables are there, as was looked at before, but this user may not see into their schema.
    {"42P01", StoreTrouble::readOnly, rightsWords},
    {"08", StoreTrouble::lost, lostWords},
    {"57P", StoreTrouble::lost, lostWords},
    {"HV00N", StoreTrouble::lost, "A partition of the archive is out of reach"},
    {"40", StoreTrouble::clash, clashWords},
    {"55P03", StoreTrouble::busy, busyWords},
    {"57014", StoreTrouble::busy, busyWords},
    {"XX001", StoreTrouble::damaged, damagedWords},
    {"XX002", StoreTrouble::damaged, damagedWords},
    {"58030", StoreTrouble::other, "The disk of the archive reports an error"},
}};

// A server that went away leaves words and no code.
constexpr std::array<std::pair<std::string_view, const char*>, 8> wordsWithoutCode = {{
    {"password authentication failed", "The server refuses the password (PGPASSWORD or the password file)"},
    {"no password supplied", "The server asks for a password (PGPASSWORD or the password file)"},
    {"does not exist", "There is no such database or user on the server"},
    {"closed the connection", lostWords},
    {"no connection to the server", lostWords},
    {"could not connect", lostWords},
    {"connection to server", lostWords},
    {"timeout", lostWords},
}};

StoreFault faultOf(StoreTrouble trouble, const std::string& words, const std::string& where, QString text) {
    text = text.simplified();
    return {trouble, words + " (" + where + ")" + (text.isEmpty() ? "" : ": " + text.toStdString())};
}

} // namespace

StoreFault storeFault(Engine engine, const QString& code, const QString& text, const std::string& where) {
    const std::string given = code.toStdString();
    if (engine == Engine::sqlite) {
        const int kind = code.toInt() & 0xFF;
        for (const auto& [number, meaning] : sqliteMeanings)
            if (number == kind)
                return faultOf(meaning.trouble, meaning.words, where, text);
        return faultOf(StoreTrouble::other, "The archive reports an error", where, text);
    }
    for (const Meaning& meaning : postgresqlMeanings)
        if (!given.empty() && given.compare(0, meaning.code.size(), meaning.code) == 0)
            return faultOf(meaning.trouble, meaning.words, where, text);
    const std::string said = text.toStdString();
    for (const auto& [part, words] : wordsWithoutCode)
        if (given.empty() && said.find(part) != std::string::npos)
            return faultOf(StoreTrouble::lost, words, where, text);
    return faultOf(given.empty() ? StoreTrouble::lost : StoreTrouble::other,
                   given.empty() ? lostWords : "The archive's server reports an error", where, text);
}

StoreFault storeFault(Engine engine, const QSqlError& error, const std::string& where) {
    return storeFault(engine, error.nativeErrorCode(), error.databaseText(), where);
}

} // namespace tally
