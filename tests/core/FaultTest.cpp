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

TEST(Fault, AFaultAboutAFileNamesItOnTheSecondLineAndSaysWhatToDo) {
    const Fault fault = fault::pathNotFound().about("/d/x.dat");
    EXPECT_EQ(fault.number(), 76);
    EXPECT_EQ(fault.subject(), "/d/x.dat");
    EXPECT_EQ(faultMessage(fault),
              "Path not found\r\n/d/x.dat\r\nIts folder is not there. Make it, or choose another one.");
    EXPECT_EQ(faultReport(fault), "Error number 76: " + faultMessage(fault));
    EXPECT_EQ(faultMessage(fault::pathNotFound()), "Path not found");
}

TEST(Fault, EveryFaultOfAFileHasAdviceAndNoOther) {
    for (const Fault& fault : {fault::fileNotFound(), fault::deviceIo(), fault::diskFull(),
                               fault::permissionDenied(), fault::pathFileAccess(), fault::pathNotFound()})
        EXPECT_NE(faultAdvice(fault), "") << fault.what();
    for (const Fault& fault :
         {fault::overflow(), fault::subscript(), fault::divisionByZero(), fault::typeMismatch()})
        EXPECT_EQ(faultAdvice(fault), "") << fault.what();
}

} // namespace
} // namespace tally
