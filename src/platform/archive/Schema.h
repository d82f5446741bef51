// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/archive/Connection.h"

#include <string>
#include <vector>

namespace tally {

// The tables of the archive and how they came to be. Version n is reached from n - 1 by the statements of
// step n.
struct Schema {
    int version = 1;
    std::vector<std::vector<std::string>> steps; // from version 1 on: steps[0] leads to version 2

    static const Schema& current();
};

// The tables and indexes of recordings. split: only the heads of tables that are split by the recording over
// other servers; a head has no keys of its own.
enum class Keys { own, split };
std::vector<std::string> tableStatements(archive::Engine engine, Keys keys);
// What a database turns out to be.
enum class Found { nothing, archive, foreign };
struct FoundArchive {
    Found found = Found::nothing;
    int version = 0;
};
FoundArchive lookAt(Connection& connection);

// Makes an archive with these tables in an empty place, in one transaction. Nothing when the archive is there
// already. Throws StoreFault for a foreign database.
void createArchive(Connection& connection, const Schema& schema, const std::vector<std::string>& tables);

// Brings an older archive to the version of the schema: a backup, then all steps in one transaction. Gives
// where the backup stands.
std::string moveUp(Connection& connection, const Schema& schema, int from);

} // namespace tally
