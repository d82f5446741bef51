// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ReceptionFile.h"

#include "support/Process.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::TemporaryFolder;

struct ReceptionFileTest : ::testing::Test {
    TemporaryFolder folder;
    std::string path = folder.path("a.raw");
    ReceptionFile file;
    std::string now() const { return TemporaryFolder::read(path); }
};

TEST_F(ReceptionFileTest, WhatIsAppendedStandsInTheFileAtOnceAndTheFillingGoesWithTheClosing) {
    ASSERT_TRUE(file.create(path));
    EXPECT_TRUE(file.append("KWTa"));
    EXPECT_EQ(withoutFilling(now()), "KWTa");
    EXPECT_EQ(now().size() % FileMap::step, 0U);
    EXPECT_TRUE(file.append(" 1234"));
    EXPECT_EQ(file.size(), 9U);
    file.close();
    EXPECT_EQ(now(), "KWTa 1234");
}

TEST_F(ReceptionFileTest, WhatWasPutIntoItsRoomIsThereBeforeItIsAppended) {
    ASSERT_TRUE(file.create(path));
    const auto room = file.room();
    ASSERT_GE(room.size(), 4096U);
    std::copy_n("PQX", 3, room.begin());
    EXPECT_EQ(withoutFilling(now()), "PQX");
    EXPECT_TRUE(file.append({room.data(), 3}));
    EXPECT_EQ(file.room().data(), room.data() + 3);
    file.close();
    EXPECT_EQ(now(), "PQX");
}

TEST_F(ReceptionFileTest, AFileGrowsAsFarAsCharactersCome) {
    ASSERT_TRUE(file.create(path));
    std::string all;
    for (int i = 0; i < 7; ++i) {
        const std::string piece(100'001, static_cast<char>('a' + i));
        ASSERT_TRUE(file.append(piece));
        all += piece;
    }
    EXPECT_EQ(withoutFilling(now()), all);
    file.close();
    EXPECT_EQ(now(), all);
}

TEST_F(ReceptionFileTest, OnlyTheFillingIsLeftOut) {
    const std::string zeros(5, '\0');
    EXPECT_EQ(withoutFilling("a" + zeros), "a" + zeros);
    std::string filled = "a" + zeros + "b";
    filled.resize(FileMap::step, '\0');
    EXPECT_EQ(withoutFilling(filled), "a" + zeros + "b");
    EXPECT_EQ(withoutFilling(std::string(2 * FileMap::step, '\0')), "");
    EXPECT_EQ(withoutFilling(""), "");
}

TEST_F(ReceptionFileTest, AClosedFileHasNoRoom) {
    EXPECT_TRUE(file.room().empty());
    ASSERT_TRUE(file.create(path));
    file.close();
    EXPECT_TRUE(file.room().empty());
    EXPECT_EQ(now(), "");
}

} // namespace
} // namespace tally
