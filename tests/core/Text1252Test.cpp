// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text1252.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(Text1252, AsciiAndLatinStandForTheirOwnNumber) {
    EXPECT_EQ(toUtf8("Feeder 12\r\n"), "Feeder 12\r\n");
    EXPECT_EQ(toUtf8("M\xFCller \xA9"), "Müller ©");
    EXPECT_EQ(to1252("Müller ©"), "M\xFCller \xA9");
}

TEST(Text1252, TheUpperControlsHaveCharactersOfTheirOwn) {
    EXPECT_EQ(toUtf8("\x80 \x85 \x93q\x94 \x99"), "€ … “q” ™");
    EXPECT_EQ(to1252("€ … “q” ™"), "\x80 \x85 \x93q\x94 \x99");
}

TEST(Text1252, EveryByteComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(to1252(toUtf8(all)), all);
}

TEST(Text1252, WhatDoesNotFitIsSaid) {
    EXPECT_FALSE(to1252("Łódź"));
    EXPECT_FALSE(to1252("𝄞"));
    EXPECT_FALSE(to1252("\xC2\x80")) << "U+0080: that code is the euro's";
    EXPECT_EQ(to1252(""), "");
}

TEST(Text1252, BytesThatAreNoUtf8AreNotTaken) {
    for (const char* bytes : {"\xFC", "\xC3", "\xC3(", "\x80", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80",
                              "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xE2\x82"})
        EXPECT_FALSE(to1252(bytes)) << bytes;
}

TEST(Text1252, RepairReplacesOnlyWhatIsNoUtf8) {
    EXPECT_EQ(repairedUtf8("Łódź 𝄞"), "Łódź 𝄞");
    EXPECT_EQ(repairedUtf8("a\xFC"
                           "b\xE2\x82"),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\xEF\xBF\xBD");
}

} // namespace
} // namespace tally
