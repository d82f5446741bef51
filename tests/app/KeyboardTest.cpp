// SPDX-License-Identifier: GPL-3.0-or-later
// The main jobs by keyboard alone: real files, real dialogs, and nothing is sent to the window but keys.
#include "KeyScript.h"
#include "WindowTest.h"

#include "app/forms/Access.h"
#include "app/forms/AccessKeys.h"
#include "app/forms/DataSelect.h"
#include "app/forms/EyeOrder.h"
#include "app/forms/QtPrompt.h"

namespace tally {
namespace {

using testing::dataFile;
using ::testing::HasSubstr;
using testing::KeyScript;
using testing::TemporaryFolder;

class Keyboard : public ::testing::Test {
protected:
    TemporaryFolder folder;
    SafeFile files;
    testing::MemorySettings settings;
    testing::FixedClock clock;
    Recordings recordings;
    Display display;
    QtPrompt prompt;
    AppSlotChooser chooser{prompt};
    testing::VirtualWaiter waiter;
    testing::VirtualLine line{waiter};
    testing::MemoryJournal journal;
    InstrumentState instrument;
    testing::FreePorts ports;
    int callPoint = 0;
    SessionServices session{
        line, waiter, prompt, instrument, journal, callPoint, [this] { waiter.cancelNow(); }};
    InstrumentPlaces places{ports, folder.path(""), folder.path("t.dat")};
    TLY window{{recordings, display, settings, files, clock, prompt, chooser, session, places}};
    KeyScript keys;

    void SetUp() override {
        easeAccess(*qApp);
        prompt.setWindow(&window);
        chooser.setWindow(&window);
        window.show();
    }
    void TearDown() override {
        delete qApp->findChild<AccessKeys*>();
        delete qApp->findChild<EyeOrder*>();
    }

    // A clean memory of thirty readings, as an instrument of type 4 sends it.
    static std::string memory() {
        std::string text = "PQXa   1234" + std::string(19, ' ') + "03-15-24 14:05   Vbatt 3E8\rT:";
        for (int i = 0; i < 3; ++i)
            text += " 120 121 122 123 124 125 126 127 128 129\n\r";
        return text + "\x1a";
    }
    void open(const std::string& path) {
        keys.awaitMainWindow().press("Ctrl+O").awaitDialog("FileDialog");
        keys.type(QString::fromStdString(path)).press("Return");
        play();
        ASSERT_TRUE(recordings.isOpen(0));
    }
    void play() { EXPECT_EQ(keys.play(), "") << "was waited for in vain"; }
    std::string shownText() { return window.screen().text().text().toStdString(); }
    Screen::Page page() { return window.screen().page(); }
};

// Four readings of a quarter of an hour, the last interval before 10:00 being the one that ran.
TEST_F(Keyboard, OpensPlotsZoomsTabulatesSummarisesExportsAndCloses) {
    open(folder.write("a.dat", dataFile('a', {10, 20, 30, 40})));
    keys.awaitMainWindow().press("Alt+V P").awaitMainWindow();
    play();
    EXPECT_EQ(page(), Screen::Page::chart);
    EXPECT_EQ(display.displayed(recordings), (Range{0, 3}));

    // The cross begins in the middle, at the third reading.
    keys.press("Right Left Shift+Right Return");
    play();
    EXPECT_EQ(display.displayed(recordings), (Range{1, 2}));

    keys.press("Alt+V T").awaitMainWindow();
    play();
    EXPECT_EQ(page(), Screen::Page::text);
    const std::string table = shownText();
    EXPECT_THAT(table, HasSubstr("09:00  Mar 15, 24          002       003"));
    keys.press("Alt+V S").awaitMainWindow();
    play();
    EXPECT_NE(shownText(), table);
    EXPECT_THAT(shownText(), HasSubstr("a.dat"));

    keys.press("Alt+F C").awaitMainWindow();
    play();
    EXPECT_FALSE(recordings.isOpen(0));
}

TEST_F(Keyboard, ExportsWhatIsShownInTheFormChosen) {
    const std::string second = folder.write("b.dat", dataFile('a', {110, 210, 310, 410}));
    open(folder.write("a.dat", dataFile('a', {10, 20, 30, 40})));
    open(second);
    ASSERT_TRUE(recordings.isOpen(1));
    keys.press("Alt+V P").awaitMainWindow().press("Right Left Shift+Right Return");
    keys.press("Alt+F E R").awaitDialog("ExportForm");
    // The first column goes; the sign after it is the second of its list, and the separator follows.
    keys.press("Alt+O Space Alt+D Down Return").awaitDialog("FileDialog");
    const std::string path = folder.path("out.csv");
    keys.type(QString::fromStdString(path)).press("Return").awaitDialog("MessageBox").press("Return");
    play();
    EXPECT_EQ(TemporaryFolder::read(path),
              "Time;b.dat\r\n2024-03-15 09:00;21,0\r\n2024-03-15 09:15;31,0\r\n");
}

TEST_F(Keyboard, DownloadsFromALineThatSendsAndSaves) {
    line.onOpen = [this](const std::string&) { waiter.after(100, [this] { line.send(memory()); }); };
    keys.awaitMainWindow().press("Alt+I D");
    // The fourth type of the list.
    keys.awaitDialog("InstSel").press("Space Down Down Down Return");
    keys.awaitDialog("Dwnloaditem").press("Return");
    // What the instrument said, what to do with its switch, and that it is over.
    for (int told = 0; told < 3; ++told)
        keys.awaitDialog("MessageBox").press("Return");
    keys.awaitMainWindow();
    play();
    EXPECT_EQ(instrument.instSelection, 4);
    const std::string path = folder.path("new.dat");
    keys.press("Ctrl+S").awaitDialog("FileDialog");
    keys.type(QString::fromStdString(path)).press("Return").awaitMainWindow();
    play();
    open(path);
    EXPECT_EQ(recordings.info(0).count, 30);
}

} // namespace
} // namespace tally
