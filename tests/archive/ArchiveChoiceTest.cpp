// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/ArchiveChoice.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

Place at(const char* text) {
    return parsePlace(text).value();
}

TEST(ArchiveChoice, StandsWhereItUsuallyStandsUntilAnotherPlaceIsChosen) {
    testing::MemorySettings settings;
    ArchiveChoice choice(settings, at("/home/me/archive.sqlite"));
    EXPECT_EQ(choice.place().text(), "/home/me/archive.sqlite");
    choice.choose(at("postgresql://me@host:5433/load"));
    EXPECT_EQ(ArchiveChoice(settings, at("/else")).place().text(), "postgresql://me@host:5433/load");
}

TEST(ArchiveChoice, BelievesNoDamagedSetting) {
    testing::MemorySettings settings;
    settings.set("Archive", "place", "mysql://host/load");
    settings.set("Archive", "automatic", "perhaps");
    const ArchiveChoice choice(settings, at("/usual"));
    EXPECT_EQ(choice.place().text(), "/usual");
    EXPECT_EQ(choice.automatic(), ArchiveChoice::Automatic::notAsked);
}

TEST(ArchiveChoice, RemembersTheAnswer) {
    testing::MemorySettings settings;
    ArchiveChoice choice(settings, at("/usual"));
    EXPECT_EQ(choice.automatic(), ArchiveChoice::Automatic::notAsked);
    choice.setAutomatic(false);
    EXPECT_EQ(choice.automatic(), ArchiveChoice::Automatic::off);
    choice.setAutomatic(true);
    EXPECT_EQ(choice.automatic(), ArchiveChoice::Automatic::on);
}

} // namespace
} // namespace tally::archive
