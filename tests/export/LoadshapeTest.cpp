// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Loadshape.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;

Loadshape shapeOf(const std::string& path, std::vector<std::int16_t> tenths, char letter = 'a') {
    Recordings recordings;
    addFile(recordings, path, std::move(tenths), {.letter = letter});
    std::set<std::string> taken;
    return loadshape(recordings, "/out/station", taken).value();
}

TEST(Loadshape, ValuesAreDividedByTheHighest) {
    const Loadshape shape = shapeOf("/x/maple.dat", {20, 80, 10});
    EXPECT_EQ(shape.csv, "0.25\n1\n0.125\n");
    EXPECT_EQ(shape.script, "! maple.dat: from 2024-03-15 14:00, 1 stands for 8.0 A\n"
                            "New Loadshape.maple npts=3 minterval=15 mult=(file=station-maple.csv)\n");
}

TEST(Loadshape, OfMinMaxAvgTheAveragesOfWholeTriples) {
    const Loadshape shape = shapeOf("g.dat", {90, 20, 30, 10, 40, 60, 5}, 'h');
    EXPECT_EQ(shape.csv, "0.5\n1\n");
    EXPECT_NE(shape.script.find("npts=2 minterval=5 "), std::string::npos) << shape.script;
}

TEST(Loadshape, AllZeroGivesZero) {
    EXPECT_EQ(shapeOf("a.dat", {0, 0}).csv, "0\n0\n");
}

TEST(Loadshape, SmallFactorsAreWrittenWithoutAnExponent) {
    EXPECT_EQ(shapeOf("a.dat", {1, 10000}).csv, "0.0001\n1\n");
}

TEST(Loadshape, NamesHoldLettersDigitsUnderscoresAndHyphens) {
    EXPECT_EQ(shapeName("/x/maple-red_1.dat"), "maple-red_1");
    EXPECT_EQ(shapeName("/x.y/north 4.5 kV.dat"), "north_4_5_kV");
    EXPECT_EQ(shapeName("\xC3\xA9.dat"), "__");
    EXPECT_EQ(shapeName(".dat"), "_");
}

TEST(Loadshape, EqualNamesAreNumberedWhateverTheirLetterCase) {
    Recordings recordings;
    addFile(recordings, "/x/Maple.dat", {10});
    std::set<std::string> taken = {"maple"};
    const auto shape = loadshape(recordings, "out", taken);
    EXPECT_EQ(shape->name, "Maple_2");
    EXPECT_TRUE(taken.contains("maple_2"));
    EXPECT_NE(shape->script.find("(file=out-Maple_2.csv)"), std::string::npos);
}

TEST(Loadshape, AFileNameWithBlanksStandsInQuotes) {
    Recordings recordings;
    addFile(recordings, "a.dat", {10});
    std::set<std::string> taken;
    EXPECT_NE(loadshape(recordings, "/x/my out", taken)->script.find("(file=\"my out-a.csv\")"),
              std::string::npos);
}

TEST(Loadshape, HasATimeWithSecondsAndAValueALine) {
    Recordings recordings;
    addFile(recordings, "a.dat", {105, 20});
    EXPECT_EQ(playerText(recordings).value(), "2024-03-15 14:00:00,10.5\n2024-03-15 14:15:00,2.0\n");
}

TEST(Loadshape, OfMinMaxAvgTheAverages) {
    Recordings recordings;
    addFile(recordings, "g.dat", {20, 30, 10, 40, 60, 5}, {.letter = 'i'});
    EXPECT_EQ(playerText(recordings).value(), "2024-03-15 14:00:00,2.0\n2024-03-15 14:01:00,4.0\n");
}

} // namespace
} // namespace tally
