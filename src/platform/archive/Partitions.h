// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/archive/Schema.h"

#include <vector>

namespace tally {

// Makes an archive whose recordings are split over other PostgreSQL servers by the hash of their key. The
// connection's server keeps only the state of the whole and reaches the others as foreign tables, with their
// passwords from its own password file. Throws StoreFault; what was made on a partition before that is empty
// and is used by the next try.
void createSplitArchive(Connection& connection, const Schema& schema,
                        const std::vector<archive::Place>& partitions);

} // namespace tally
