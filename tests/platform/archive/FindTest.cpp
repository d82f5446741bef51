// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/OpenedArchive.h"

#include "archive/Day.h"

namespace tally::archive {
namespace {

using tally::testing::constant;
using tally::testing::OpenedArchive;

class Find : public OpenedArchive {};

TEST_F(Find, FindsPartsOfEveryText) {
    add({.serial = "A123", .other = "near the OLD mill", .path = "/data/Folder-7/File_8.dat"});
    for (const char* word :
         {"nort", "ORTH", "aple", "a12", "23", "old mill", "folder-7", "ile_8", ".dat", "7", "n"})
        EXPECT_EQ(having({word}), 1U) << word;
    for (const char* word : {"south", "A1234", "data", "northmaple", "zz"})
        EXPECT_EQ(having({word}), 0U) << word;
    EXPECT_EQ(having({"north", "mill"}), 1U);
    EXPECT_EQ(having({"north", "south"}), 0U);
    EXPECT_EQ(having({""}), 1U);
}

TEST_F(Find, TakesEverySignForItself) {
    add({.serial = "1", .other = "100% of a_b \\ 'quoted' \"words\" [x] (y) * ? ! ^ $ ; -- 5"});
    for (const char* word :
         {"100%", "a_b", "\\", "'quoted'", "\"words\"", "[x]", "*", "?", "!", "^", "$", "; --", "%"})
        EXPECT_EQ(having({word}), 1U) << word;
    for (const char* word : {"1%5", "a%b", "axb", "a?b", "[y]", "_b_", "' OR 1=1", "\\\\"})
        EXPECT_EQ(having({word}), 0U) << word;
}

TEST_F(Find, TakesUpperAndLowerCaseAlikeInEveryLanguage) {
    // Notes are Windows-1252.
    add({.station = "\xC4rger", .circuit = "\xC9tang"});
    EXPECT_EQ(having({"\xC3\xA4RGER"}), 1U);  // äRGER
    EXPECT_EQ(having({"\xC3\xA9tang"}), 1U);  // étang
    EXPECT_EQ(having({"E\xCC\x81tang"}), 1U); // E with an accent of its own
    EXPECT_EQ(having({"etang"}), 0U);
}

TEST_F(Find, ComparesNamesWhole) {
    add({.serial = "12", .station = "North", .circuit = "Maple"});
    Selection selection;
    selection.circuit = "maple";
    EXPECT_EQ(find(selection).size(), 1U);
    selection.circuit = "mapl";
    EXPECT_EQ(find(selection).size(), 0U);
    selection = {};
    selection.station = "NORTH";
    EXPECT_EQ(find(selection).size(), 1U);
    selection.station = "";
    EXPECT_EQ(find(selection).size(), 0U);
    selection = {};
    selection.serial = "12";
    EXPECT_EQ(find(selection).size(), 1U);
    selection.serial = "1";
    EXPECT_EQ(find(selection).size(), 0U);
}

TEST_F(Find, TakesDatesOnWhichThereIsAReading) {
    // 2020-01-06 23:45 to 2020-01-08 00:00, the last reading.
    add({.start = {2020, 1, 6, 23, 45}, .values = constant(98, 5)});
    const auto on = [&](const char* from, const char* to) {
        Selection selection;
        selection.from = parseDay(from);
        selection.to = parseDay(to);
        return find(selection).size();
    };
    EXPECT_EQ(on("2020-01-06", "2020-01-06"), 1U);
    EXPECT_EQ(on("2020-01-08", "2020-01-08"), 1U);
    EXPECT_EQ(on("2020-01-07", "2020-01-07"), 1U);
    EXPECT_EQ(on("2019-01-01", "2021-01-01"), 1U);
    EXPECT_EQ(on("2020-01-01", "2020-01-05"), 0U);
    EXPECT_EQ(on("2020-01-09", "2020-01-31"), 0U);
}

TEST_F(Find, TellsUnitsApartAndStopsWhereItIsTold) {
    add({.type = 'V', .serial = "1"});
    add({.serial = "2"});
    add({.serial = "3"});
    Selection selection;
    selection.unit = 'V';
    EXPECT_EQ(find(selection).size(), 1U);
    selection.unit = 'A';
    EXPECT_EQ(find(selection).size(), 2U);
    selection.maximum = 1;
    EXPECT_EQ(find(selection).size(), 1U);
}

TEST_F(Find, FindsByTheBeginningOfTheName) {
    add({.serial = "1"});
    add({.serial = "2"});
    const Entry entry = find().at(1);
    Selection selection;
    for (const std::size_t digits : {std::size_t{16}, std::size_t{9}}) {
        selection.id = IdBeginning(entry.name().substr(0, digits));
        ASSERT_EQ(find(selection).size(), 1U);
        EXPECT_EQ(find(selection)[0].id, entry.id);
    }
    std::string other = entry.name();
    other.back() = other.back() == '0' ? '1' : '0';
    selection.id = IdBeginning(other);
    EXPECT_EQ(find(selection).size(), 0U);
}

TEST_F(Find, SortsByStationCircuitAndTime) {
    add({.start = {2021, 1, 1, 0, 0}, .serial = "1", .station = "b"});
    add({.start = {2020, 1, 1, 0, 0}, .serial = "2", .station = "B"});
    add({.serial = "3", .station = "a", .circuit = "Z"});
    add({.serial = "4", .station = "a", .circuit = "_"});
    std::string order;
    for (const Entry& entry : find())
        order += entry.serial[0];
    EXPECT_EQ(order, "4321"); // "_" stands before "z" byte by byte
}

} // namespace
} // namespace tally::archive
