// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Places.h"

namespace testing {

std::string sourceDir() {
    return TALLY_SOURCE_DIR;
}

std::string binDir() {
    return TALLY_BIN_DIR;
}

} // namespace testing
