// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Place.h"
#include "archive/StoreFault.h"

#include <QSqlError>
#include <QString>

namespace tally {

// What an error of an engine means, in words for people. `where`: the archive as it may be shown.
archive::StoreFault storeFault(archive::Engine engine, const QSqlError& error, const std::string& where);
archive::StoreFault storeFault(archive::Engine engine, const QString& code, const QString& text,
                               const std::string& where);

} // namespace tally
