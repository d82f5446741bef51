// SPDX-License-Identifier: GPL-3.0-or-later
// What --help and a wrong usage say.
#include "support/Process.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::runProgram;

TEST(HelpText, NamesTheFilesThatACommandTakes) {
    EXPECT_NE(runProgram("tallyline-cli", {"plot", "--help"}).out.find("FILE [FILE [FILE]]"),
              std::string::npos);
    EXPECT_NE(runProgram("tallyline-cli", {"export", "opendss", "--help"}).out.find("FILE..."),
              std::string::npos);
    EXPECT_NE(runProgram("tallyline-cli", {"power"})
                  .err.find("Usage: tallyline-cli power FILE [FILE [FILE]] [--option VALUE]"),
              std::string::npos);
}

} // namespace
} // namespace tally
