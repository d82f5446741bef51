// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "archive/Place.h"
#include "platform/archive/SqlValue.h"

#include <string>

namespace tally {

// A selection as a condition on `recording`, with the values that are bound to it.
struct Where {
    std::string condition; // "" or " WHERE ..."
    SqlRow values;
};

Where whereOf(const archive::Selection& selection, archive::Engine engine,
              const archive::ArchiveTools& tools);

} // namespace tally
