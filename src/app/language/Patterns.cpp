// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language/Patterns.h"

#include <array>

namespace tally {

std::span<const char* const> patterns() {
    static constexpr std::array<const char*, 1> all = {"%1 of %2"};
    return all;
}

} // namespace tally
