// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"

// One line per command; each stands in a file of its own, named after it.
namespace tally::cli {

void addInfo(CLI::App& program, Context& context);

} // namespace tally::cli
