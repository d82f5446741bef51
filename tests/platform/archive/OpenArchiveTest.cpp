// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CopyArchive.h"
#include "archive/Verify.h"
#include "platform/archive/OpenedArchive.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace tally::archive {
namespace {

using tally::testing::keptOf;
using tally::testing::OpenedArchive;
using tally::testing::tools;

// Where nothing has been made yet.
class OpenArchive : public OpenedArchive {
protected:
    OpenArchive() : OpenedArchive(false) {}
    std::string refusal(const Schema& schema = Schema::current()) {
        auto opened = openArchive(place, tools(), {}, schema);
        return opened ? "" : opened.error().text;
    }
    void make() {
        const auto made = initArchive(place);
        ASSERT_TRUE(made) << made.error().message();
    }
    // A version that a later program would have: one more column.
    static Schema later() {
        Schema schema;
        schema.version = 2;
        schema.steps = {{"ALTER TABLE recording ADD COLUMN later BIGINT DEFAULT 7"}};
        return schema;
    }
};

TEST_F(OpenArchive, RefusesWhereThereIsNone) {
    EXPECT_EQ(refusal(), "There is no archive");
}

TEST_F(OpenArchive, MakesAnArchiveOnlyOnce) {
    make();
    open();
    add({});
    make();
    open();
    EXPECT_EQ(store->stats().recordings, 1);
}

TEST_F(OpenArchive, RefusesANewerVersionAndLeavesItAlone) {
    ASSERT_TRUE(initArchive(place, {}, later()));
    EXPECT_EQ(refusal(), "The archive was made by a newer version of this program");
    EXPECT_EQ(refusal(later()), "");
}

TEST_F(OpenArchive, MovesAnOlderVersionUpAfterABackup) {
    make();
    open();
    add({});
    store.reset();
    std::string told;
    auto opened = openArchive(
        place, tools(), [&](const std::string& text) { told = text; }, later());
    ASSERT_TRUE(opened) << opened.error().message();
    EXPECT_EQ((*opened)->stats().recordings, 1);
    opened->reset();
    EXPECT_NE(told.find("version 2"), std::string::npos);
    EXPECT_EQ(refusal(), "The archive was made by a newer version of this program");
    if (onServer())
        return;
    Place backup;
    backup.path = place.path + ".version1";
    const auto before = openArchive(backup, tools());
    ASSERT_TRUE(before) << before.error().message();
    EXPECT_EQ((*before)->stats().recordings, 1);
}

TEST_F(OpenArchive, LeavesAnOlderVersionAsItIsWhenAStepFails) {
    make();
    open();
    add({});
    store.reset();
    Schema broken = later();
    broken.steps[0].emplace_back("ALTER TABLE recording ADD COLUMN later BIGINT");
    EXPECT_NE(refusal(broken), "");
    EXPECT_EQ(refusal(), "");
    open();
    EXPECT_EQ(store->stats().recordings, 1);
}

TEST_F(OpenArchive, WritesABackupThatIsAnArchive) {
    make();
    open();
    add({.serial = "1"});
    add({.serial = "2", .noted = false});
    store->assign(find().at(0).id, "South", "Elm");
    const std::string path = folder.path("backup.sqlite");
    store->backup(path);
    EXPECT_EQ(QFileInfo(QString::fromStdString(path)).permissions() & (QFile::ReadGroup | QFile::ReadOther),
              0);
    EXPECT_THROW(store->backup(path), StoreFault);
    Place copy;
    copy.path = path;
    const auto opened = openArchive(copy, tools());
    ASSERT_TRUE(opened) << opened.error().message();
    EXPECT_EQ((*opened)->stats().recordings, 2);
    EXPECT_EQ((*opened)->find({}).at(0).belonging.circuit, find().at(0).belonging.circuit);
    EXPECT_TRUE(verifyArchive(**opened, tools()).bad.empty());
}

// Looks for a file whenever it is asked for the case of letters.
class WatchingTools : public QtArchiveTools {
public:
    explicit WatchingTools(std::string path) : path_(std::move(path)) {}
    std::string fold(std::string_view text) const override {
        ++asked;
        seen += QFileInfo::exists(QString::fromStdString(path_)) ? 1 : 0;
        return QtArchiveTools::fold(text);
    }
    mutable int asked = 0;
    mutable int seen = 0;

private:
    std::string path_;
};

TEST_F(OpenArchive, GivesABackupItsNameOnlyWhenItIsWhole) {
    make();
    open();
    add({});
    const std::string path = folder.path("backup.sqlite");
    const WatchingTools watching(path);
    const auto opened = openArchive(place, watching);
    ASSERT_TRUE(opened) << opened.error().message();
    (*opened)->backup(path);
    // A file is copied by its own engine, which asks for no letters.
    EXPECT_EQ(watching.asked > 0, onServer());
    EXPECT_EQ(watching.seen, 0);
    for (const char* suffix : {"-wal", "-shm", ".part", ".part-wal", ".part-shm"})
        EXPECT_FALSE(QFileInfo::exists(QString::fromStdString(path + suffix))) << suffix;
}

TEST_F(OpenArchive, WritesABackupAnewThatAKilledProgramLeft) {
    make();
    open();
    add({});
    const std::string path = folder.path("backup.sqlite");
    store->backup(path);
    std::filesystem::rename(path, path + ".part");
    add({.serial = "2"});
    store->backup(path);
    EXPECT_FALSE(std::filesystem::exists(path + ".part"));
    Place copy;
    copy.path = path;
    const auto opened = openArchive(copy, tools());
    ASSERT_TRUE(opened) << opened.error().message();
    EXPECT_EQ((*opened)->stats().recordings, 2);
}

TEST_F(OpenArchive, LeavesAFileOfAnotherProgramBesideABackupAlone) {
    make();
    open();
    const std::string other = folder.write("backup.sqlite.part", "a letter");
    EXPECT_THROW(store->backup(folder.path("backup.sqlite")), StoreFault);
    EXPECT_EQ(tally::testing::TemporaryFolder::read(other), "a letter");
    EXPECT_FALSE(std::filesystem::exists(folder.path("backup.sqlite")));
}

TEST_F(OpenArchive, CopiesEverythingInTheOrderOfAdding) {
    make();
    open();
    for (const char* serial : {"3", "1", "2"})
        add({.serial = serial});
    add({.serial = "3", .path = "/elsewhere/x/y.dat"});
    store->assign(store->page(0, 1).at(0).id, "South", "Elm");
    Place other;
    other.path = folder.path("copy.sqlite");
    ASSERT_TRUE(initArchive(other));
    const auto target = openArchive(other, tools());
    ASSERT_TRUE(target);
    const CopyCount count = copyArchive(*store, **target);
    EXPECT_EQ(count.added, 3);
    EXPECT_EQ(copyArchive(*store, **target).already, 3);
    const auto from = store->page(0, 9);
    const auto to = (*target)->page(0, 9);
    ASSERT_EQ(to.size(), 3U);
    for (std::size_t at = 0; at < 3; ++at) {
        EXPECT_EQ(to[at].id, from[at].id);
        EXPECT_EQ(to[at].belonging.circuit, from[at].belonging.circuit);
        EXPECT_EQ(to[at].belonging.assigned, from[at].belonging.assigned);
        ASSERT_EQ(to[at].sources.size(), from[at].sources.size());
        EXPECT_EQ(to[at].sources.back().names, from[at].sources.back().names);
    }
    EXPECT_TRUE(verifyArchive(**target, tools()).bad.empty());
}

// What only a file can be.
class ArchiveInFile : public OpenArchive {
protected:
    void SetUp() override {
        if (onServer())
            GTEST_SKIP() << "is about files";
    }
};

TEST_F(ArchiveInFile, IsForThisUserAlone) {
    make();
    open();
    add({});
    constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    for (const char* suffix : {"", "-wal", "-shm"})
        EXPECT_EQ(QFileInfo(QString::fromStdString(place.path + suffix)).permissions() & others, 0) << suffix;
}

TEST_F(ArchiveInFile, RefusesTheFileOfAnotherProgramAndLeavesItAlone) {
    const std::string text = "This is a letter, not an archive.";
    place.path = folder.write("letter.txt", text);
    EXPECT_EQ(refusal(), "This is no archive but a file or database of another program");
    EXPECT_FALSE(initArchive(place));
    EXPECT_EQ(tally::testing::TemporaryFolder::read(place.path), text);
}

TEST_F(ArchiveInFile, RefusesTheDatabaseOfAnotherProgramAndLeavesItAlone) {
    folder.write("archive.sqlite", "");
    {
        Connection connection(place, Connection::Mode::write);
        connection.execute("CREATE TABLE other (x)");
    }
    const std::string before = tally::testing::TemporaryFolder::read(place.path);
    EXPECT_EQ(refusal(), "This is no archive but a file or database of another program");
    EXPECT_FALSE(initArchive(place));
    EXPECT_EQ(tally::testing::TemporaryFolder::read(place.path), before);
}

TEST_F(ArchiveInFile, TakesAnEmptyFileForAnEmptyPlace) {
    folder.write("archive.sqlite", "");
    EXPECT_EQ(refusal(), "There is no archive");
    make();
    EXPECT_EQ(refusal(), "");
}

TEST_F(ArchiveInFile, MakesNothingWhereThereIsNoFolder) {
    place.path = folder.path("nowhere/archive.sqlite");
    const auto made = initArchive(place);
    ASSERT_FALSE(made);
    EXPECT_NE(made.error().text.find("no such folder"), std::string::npos);
}

// A table whose last row cannot be read, though those before it can.
TEST_F(ArchiveInFile, TakesRowsThatCannotBeReadForNoEnd) {
    make();
    open();
    for (const char* serial : {"1", "2", "3"})
        add({.serial = serial});
    std::vector<Id> ids;
    for (const Entry& entry : find())
        ids.push_back(entry.id);
    const auto nothing = [](Id, std::string_view) {};
    EXPECT_NO_THROW(store->dayFigures(ids, nothing));
    Connection connection(place, Connection::Mode::write);
    const std::string broken = "CASE WHEN id = (SELECT max(id) FROM whole) "
                               "THEN abs(-9223372036854775807 - 1) ELSE ";
    connection.execute("ALTER TABLE daily RENAME TO whole");
    connection.execute("CREATE VIEW daily AS SELECT id, " + broken + "figures END AS figures FROM whole");
    EXPECT_THROW(store->dayFigures(ids, nothing), StoreFault);
    connection.execute("DROP VIEW daily");
    connection.execute("ALTER TABLE whole RENAME TO daily");
    EXPECT_NO_THROW(store->dayFigures(ids, nothing));
    connection.execute("ALTER TABLE recording RENAME TO whole");
    connection.execute("CREATE VIEW recording AS SELECT id, first_day, last_day, " + broken +
                       "sha END AS sha, noted FROM whole");
    EXPECT_THROW(store->add({keptOf({.serial = "1"}), keptOf({.serial = "2"}), keptOf({.serial = "3"})}),
                 StoreFault);
}

TEST_F(ArchiveInFile, SaysThatAFileIsDamaged) {
    make();
    open();
    for (int serial = 0; serial < 40; ++serial)
        add({.values = tally::testing::constant(500, serial), .serial = std::to_string(serial)});
    store.reset();
    QFile file(QString::fromStdString(place.path));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_GT(file.size(), 40000);
    file.seek(4096);
    file.write(QByteArray(30000, '\x5A'));
    file.close();
    auto opened = openArchive(place, tools());
    try {
        ASSERT_FALSE(opened && verifyArchive(**opened, tools()).bad.empty());
    } catch (const StoreFault& fault) {
        EXPECT_EQ(fault.trouble(), StoreTrouble::damaged) << fault.what();
    }
}

} // namespace
} // namespace tally::archive
