// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Refusal.h"

#include <string>
#include <string_view>

namespace tally::archive {

enum class Engine { sqlite, postgresql };

// Where an archive stands.
struct Place {
    Engine engine = Engine::sqlite;
    std::string path; // SQLite
    std::string user; // PostgreSQL; empty: as the client library finds it
    std::string host;
    int port = 5432;
    std::string database;

    // As it may be shown; there is no password in it.
    std::string text() const;
};

// Reads "PATH", "sqlite:PATH" or "postgresql://USER@HOST:PORT/NAME" (parts may be percent-encoded). Refused:
// other schemes, a password, a port outside 1 to 65535, no host or name.
Expected<Place> parsePlace(std::string_view text);

} // namespace tally::archive
