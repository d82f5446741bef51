// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Identity.h"
#include "platform/archive/SqlValue.h"

#include <functional>
#include <string>
#include <vector>

namespace tally {

// Asks for many recordings in a few statements: calls `ask` with "(?, ?, ...)" and the values for it. A few
// lengths only, the rest filled up with the last key, so that the statements can be kept.
void inPortions(const std::vector<archive::Id>& ids,
                const std::function<void(const std::string& list, const SqlRow& values)>& ask);

} // namespace tally
