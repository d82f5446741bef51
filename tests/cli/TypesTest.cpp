// SPDX-License-Identifier: GPL-3.0-or-later
// The list of instrument types, run as a user's script runs it.
#include "support/Process.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tally {
namespace {

using testing::runProgram;

TEST(Types, ListEveryInstrumentTypeWithItsSettings) {
    const auto json = runProgram("tallyline-cli", {"types", "--json"});
    EXPECT_EQ(json.status, 0);
    for (const char* fact :
         {R"("code": 1,)", R"("name": "HVN40/80",)", R"("name": "",)", R"("name": "PQX-K4-AutoDetect",)",
          R"("settings": "115200,N,8,1",)", R"("samples": 2091)", R"("samples": 42966)", R"("code": 11,)"})
        EXPECT_NE(json.out.find(fact), std::string::npos) << fact;
    EXPECT_EQ(json.out.find(R"("code": 0)"), std::string::npos);
    const auto text = runProgram("tallyline-cli", {"types"});
    EXPECT_EQ(std::count(text.out.begin(), text.out.end(), '\n'), 11);
    EXPECT_NE(text.out.find("8   PQX-K4-W            115200,N,8,1  42966\n"), std::string::npos) << text.out;
}

} // namespace
} // namespace tally
