// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fault.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(Fault, TheReportNamesNumberAndDescription) {
    EXPECT_EQ(faultReport(fault::overflow()), "Error number 6: Overflow");
    EXPECT_EQ(faultReport(fault::typeMismatch()), "Error number 13: Type mismatch");
}

TEST(Fault, TheReportNamesTheCallPointWhereOneIsSet) {
    EXPECT_EQ(faultReport(fault::deviceIo(), 315),
              "Error number 57: Device I/O error\r\ngErrorCallPoint = 315");
}

} // namespace
} // namespace tally
