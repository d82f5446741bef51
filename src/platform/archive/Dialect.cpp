// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/Dialect.h"

namespace tally::dialect {

using archive::Engine;

std::string holdsWord(Engine engine, const std::string& column) {
    // PostgreSQL finds parts of a text through its trigram index by LIKE only.
    return engine == Engine::sqlite ? "instr(" + column + ", ?) > 0" : column + " LIKE ? ESCAPE '!'";
}

std::string wordValue(Engine engine, const std::string& word) {
    if (engine == Engine::sqlite)
        return word;
    std::string pattern = "%";
    for (const char c : word) {
        if (c == '%' || c == '_' || c == '!')
            pattern += '!';
        pattern += c;
    }
    return pattern + "%";
}

std::string keyType(Engine engine) {
    return engine == Engine::sqlite ? "INTEGER PRIMARY KEY" : "BIGINT PRIMARY KEY";
}

std::string nameType(Engine engine) {
    return engine == Engine::sqlite ? "TEXT" : "TEXT COLLATE \"C\"";
}

std::string blobType(Engine engine) {
    return engine == Engine::sqlite ? "BLOB" : "BYTEA";
}

std::vector<std::string> wordIndex(Engine engine) {
    // SQLite reads the words of 100,000 recordings in 20 ms; an index would cost more at every adding.
    if (engine == Engine::sqlite)
        return {};
    return {"CREATE EXTENSION IF NOT EXISTS pg_trgm WITH SCHEMA public",
            "CREATE INDEX words_text ON words USING gin (text public.gin_trgm_ops)"};
}

std::string analyse(Engine engine) {
    return engine == Engine::sqlite ? "PRAGMA optimize" : "ANALYZE";
}

} // namespace tally::dialect
