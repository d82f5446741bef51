// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Place.h"

#include <QSqlDatabase>

namespace tally {

// Opens a connection to a PostgreSQL server whose host, port and database are set. Throws StoreFault within 5
// s, whatever the name service or the network do.
void openServer(QSqlDatabase& database, const archive::Place& place);

} // namespace tally
