// SPDX-License-Identifier: GPL-3.0-or-later
// Adding beside the window.
#include "FormDesk.h"

#include <QCloseEvent>

namespace tally {
namespace {

using testing::bytesOf;
using testing::FormDesk;
using testing::notesOf;
using testing::Sample;

struct Adding : FormDesk {
    // `count` recordings and one file that is none, in a folder.
    void writeFiles(int count) {
        std::filesystem::create_directory(folder.path("files"));
        Sample sample;
        for (int number = 0; number < count; ++number) {
            sample.values = {1, number % 900, number / 900};
            const std::string name = "files/r" + std::to_string(number);
            folder.write(name + ".dat", bytesOf(sample));
        }
        folder.write("files/z.dat", "no recording");
        chosenFolder = folder.path("files");
    }
    std::size_t kept() {
        const auto store = openArchive(archives.place, archives.tools());
        return std::size_t((*store)->stats().recordings);
    }
};

TEST_F(Adding, TakesAFolderAndTellsWhatWasBad) {
    keep({});
    openForm();
    writeFiles(30);
    click("archiveAddFolder");
    EXPECT_TRUE(find<QWidget>("AddBar").isVisible());
    ASSERT_TRUE(comes([this] { return !adder->running(); }));
    EXPECT_TRUE(comes([this] { return rows() == 30; }));
    EXPECT_TRUE(notices().starts_with("30 added, 0 there already, 1 failed\n")) << notices();
    EXPECT_NE(notices().find(folder.path("files/z.dat") + ": Error in processing file"), std::string::npos);
    EXPECT_FALSE(find<QWidget>("AddBar").isVisible());
}

TEST_F(Adding, TakesSingleFilesWithTheirNotes) {
    keep({});
    openForm();
    Sample sample;
    folder.write("one.dat", bytesOf(sample));
    folder.write("one.not", notesOf(sample));
    chosenFiles = {folder.path("one.dat")};
    click("archiveAddFiles");
    EXPECT_TRUE(comes([this] { return rows() == 1 && cell(0, 0) == "Maple"; }));
}

TEST_F(Adding, StopsAtABatchAndGoesOnLater) {
    keep({});
    openForm();
    writeFiles(2600);
    QSignalSpy progress(adder.get(), &archive::Adder::progressed);
    click("archiveAddFolder");
    ASSERT_TRUE(comes([&] { return progress.count() > 3; }, 30000));
    click("addStop");
    ASSERT_TRUE(comes([this] { return !adder->running(); }, 30000));
    EXPECT_TRUE(notices().starts_with("Stopped: ")) << notices();
    // Whole batches of 500.
    const std::size_t there = kept();
    EXPECT_LT(there, 2600U);
    EXPECT_EQ(there % 500, 0U);
    click("archiveAddFolder");
    ASSERT_TRUE(comes([this] { return !adder->running(); }, 30000));
    EXPECT_EQ(kept(), 2600U);
}

TEST_F(Adding, AsksBeforeTheWindowIsClosed) {
    keep({});
    openForm();
    writeFiles(30);
    archives.delay = 300;
    click("archiveAddFolder");
    prompt.answers.push_back(Answer::No);
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(adder->running());
    prompt.answers.push_back(Answer::Yes);
    EXPECT_TRUE(form->close());
    ASSERT_TRUE(comes([this] { return !adder->running(); }));
    EXPECT_EQ(kept(), 0U);
    EXPECT_TRUE(form->close());
    EXPECT_EQ(prompt.shown.size(), 2U);
}

TEST_F(Adding, SaysWhyItCannotGoOn) {
    keep({});
    openForm();
    writeFiles(3);
    ASSERT_TRUE(comes([this] { return state().starts_with("The archive is empty"); }));
    archives.outOfReach = true;
    click("archiveAddFolder");
    ASSERT_TRUE(comes([this] { return !adder->running(); }));
    EXPECT_TRUE(notices().starts_with("The archive's server is out of reach")) << notices();
}

} // namespace
} // namespace tally
