// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Verify.h"
#include "platform/archive/OpenedArchive.h"

#include "archive/Day.h"

namespace tally::archive {
namespace {

using tally::testing::bytesOf;
using tally::testing::keptOf;
using tally::testing::OpenedArchive;
using tally::testing::Sample;
using tally::testing::tools;

class Store : public OpenedArchive {};

TEST_F(Store, KeepsARecordingOnceAndItsSourcesTwice) {
    EXPECT_TRUE(add({.path = "/data/a/one.dat"}));
    EXPECT_FALSE(add({.path = "/data/b/two.dat"}));
    EXPECT_FALSE(add({.path = "/data/a/one.dat"}));
    auto entries = find();
    ASSERT_EQ(entries.size(), 1U);
    store->addSources(entries);
    ASSERT_EQ(entries[0].sources.size(), 2U);
    EXPECT_EQ(entries[0].sources[0].path, "/data/a/one.dat");
    EXPECT_EQ(entries[0].sources[1].path, "/data/b/two.dat");
}

TEST_F(Store, KeepsOneOfTwoEqualRecordingsInABatch) {
    const auto isNew =
        store->add({keptOf({.path = "/d/a.dat"}), keptOf({.path = "/d/b.dat"}), keptOf({.serial = "9"})});
    EXPECT_EQ(isNew, (std::vector<bool>{true, false, true}));
    EXPECT_EQ(store->stats().recordings, 2);
}

TEST_F(Store, GivesBackEveryFact) {
    add({.start = {2021, 3, 1, 10, 0},
         .values = {10, 40, 30},
         .type = 'V',
         .serial = "AB 1",
         .other = "50% \"x\" 'y' \\ _"});
    const Entry entry = find().at(0);
    const Kept kept = keptOf({.start = {2021, 3, 1, 10, 0},
                              .values = {10, 40, 30},
                              .type = 'V',
                              .serial = "AB 1",
                              .other = "50% \"x\" 'y' \\ _"});
    EXPECT_EQ(entry.id, kept.entry.id);
    EXPECT_EQ(entry.sha, kept.entry.sha);
    EXPECT_EQ(entry.serial, "AB 1");
    EXPECT_EQ(entry.belonging.station, "North");
    EXPECT_EQ(entry.belonging.circuit, "Maple");
    EXPECT_EQ(entry.unit, 'V');
    EXPECT_EQ(timeText(entry.start), "2021-03-01T10:00");
    EXPECT_EQ(timeText(entry.end), "2021-03-01T10:45");
    EXPECT_EQ(entry.lowest, 100);
    EXPECT_EQ(entry.figures.highest, 400);
    EXPECT_EQ(timeText(entry.figures.highestAt), "2021-03-01T10:15");
    EXPECT_EQ(entry.notes[3], "50% \"x\" 'y' \\ _");
    EXPECT_EQ(entry.size, kept.entry.size);
}

TEST_F(Store, GivesBackTheBytesAndTheNotesFile) {
    const Sample sample = {.other = "caf\xE9"};
    add(sample);
    const auto given = giveBack(*store, find().at(0), tools());
    ASSERT_TRUE(given);
    EXPECT_EQ(given->bytes, bytesOf(sample));
    EXPECT_EQ(given->notesFile, notesOf(sample));
}

TEST_F(Store, TakesNotesLaterButOnlyOnce) {
    add({.noted = false, .path = "/data/x/plain.dat"});
    EXPECT_FALSE(giveBack(*store, find().at(0), tools())->notesFile);
    EXPECT_EQ(having({"maple"}), 0U);
    EXPECT_FALSE(add({.path = "/data/y/noted.dat"}));
    EXPECT_EQ(find().at(0).belonging.circuit, "Maple");
    EXPECT_EQ(having({"maple", "plain.dat"}), 1U);
    EXPECT_FALSE(add({.circuit = "Oak", .path = "/data/z/other.dat"}));
    EXPECT_EQ(find().at(0).belonging.circuit, "Maple");
    EXPECT_EQ(giveBack(*store, find().at(0), tools())->notesFile, notesOf(Sample()));
    EXPECT_TRUE(verifyArchive(*store, tools()).bad.empty());
}

TEST_F(Store, KeepsAssignedNamesWhenNotesComeLater) {
    add({.noted = false});
    ASSERT_TRUE(store->assign(find().at(0).id, "South", "Elm"));
    add({.path = "/data/y/noted.dat"});
    const Entry entry = find().at(0);
    EXPECT_EQ(entry.belonging.station, "South");
    EXPECT_EQ(entry.belonging.circuit, "Elm");
    EXPECT_EQ(entry.notes[1], "Maple");
    EXPECT_EQ(having({"elm"}), 1U);
    EXPECT_EQ(having({"maple"}), 1U);
    EXPECT_TRUE(verifyArchive(*store, tools()).bad.empty());
}

TEST_F(Store, RemovesARecordingWhole) {
    add({});
    add({.serial = "9"});
    const Id id = find().at(0).id;
    EXPECT_TRUE(store->remove(id));
    EXPECT_FALSE(store->remove(id));
    EXPECT_FALSE(store->body(id));
    EXPECT_EQ(store->stats().recordings, 1);
    EXPECT_EQ(having({"north"}), 1U);
    EXPECT_FALSE(store->assign(id, "x", "y"));
}

TEST_F(Store, PagesInTheOrderOfAdding) {
    for (const char* serial : {"3", "1", "2"})
        add({.serial = serial});
    const auto first = store->page(0, 2);
    ASSERT_EQ(first.size(), 2U);
    EXPECT_EQ(first[0].serial, "3   ");
    const auto second = store->page(first[1].added, 2);
    ASSERT_EQ(second.size(), 1U);
    EXPECT_EQ(second[0].serial, "2   ");
    EXPECT_FALSE(second[0].sources.empty());
}

TEST_F(Store, CountsWhatItHolds) {
    EXPECT_EQ(store->stats().recordings, 0);
    EXPECT_FALSE(store->stats().days);
    add({.start = {2020, 1, 6, 0, 0}});
    add({.start = {2021, 5, 1, 0, 0}, .serial = "2", .station = "NORTH", .circuit = "maple"});
    add({.start = {2020, 5, 1, 0, 0}, .serial = "3", .circuit = ""});
    const Stats stats = store->stats();
    EXPECT_EQ(stats.recordings, 3);
    EXPECT_EQ(stats.readings, 9);
    EXPECT_EQ(stats.circuits, 1);
    EXPECT_EQ(stats.stations, 1);
    EXPECT_EQ(stats.bytes, static_cast<std::int64_t>(bytesOf({}).size() * 3));
    EXPECT_EQ(dayText(stats.days->first), "2020-01-06");
    EXPECT_EQ(dayText(stats.days->last), "2021-05-01");
}

TEST_F(Store, TellsABadRecording) {
    add({});
    add({.serial = "9"});
    Connection connection(place, Connection::Mode::write);
    const Id id = find().at(0).id;
    const std::string table = onServer() ? "tallyline.body" : "body";
    connection.run("UPDATE " + table + " SET bytes = ? WHERE id = ?",
                   {Blob{tools().squeeze("other bytes")}, id});
    const Verified verified = verifyArchive(*store, tools());
    EXPECT_EQ(verified.checked, 2);
    ASSERT_EQ(verified.bad.size(), 1U);
    EXPECT_EQ(verified.bad[0], find().at(0).name());
    EXPECT_FALSE(giveBack(*store, find().at(0), tools()));
}

TEST_F(Store, TellsABadFigure) {
    add({});
    Connection connection(place, Connection::Mode::write);
    connection.run(std::string("UPDATE ") + (onServer() ? "tallyline." : "") +
                       "recording SET highest = highest + ?",
                   {std::int64_t{1}});
    EXPECT_EQ(verifyArchive(*store, tools()).bad.size(), 1U);
}

} // namespace
} // namespace tally::archive
