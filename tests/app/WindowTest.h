// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/TLY.h"
#include "app/forms/NoticeBar.h"
#include "platform/SafeFile.h"
#include "platform/archive/QtArchives.h"
#include "support/FixedClock.h"
#include "support/MemoryFiles.h"
#include "support/MemoryJournal.h"
#include "support/MemorySettings.h"
#include "support/Process.h"
#include "support/QueuedPrompt.h"
#include "support/VirtualLine.h"
#include "support/VirtualWaiter.h"
#include "view/forms/Chart.h"
#include "view/forms/TextView.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <gmock/gmock.h>

namespace tally::testing {

// Answers the list of open files from a queue.
class QueuedChooser : public SlotChooser {
public:
    std::deque<int> answers;
    std::vector<int> pendingCommands;

    int choose(const Recordings&, int pendingCommand) override {
        pendingCommands.push_back(pendingCommand);
        const int answer = answers.at(0);
        answers.pop_front();
        return answer;
    }
};

// A machine whose ports are all free; it lists the devices that a test gives it.
class FreePorts : public PortCatalogue {
public:
    std::vector<PortDevice> listed;
    std::vector<PortDevice> devices() const override { return listed; }
    PortPresence presence(const std::string&) const override { return PortPresence::free; }
};

// Archives whose usual place is a folder of the test; there is none before one is made.
class FolderArchives : public QtArchives {
public:
    TemporaryFolder folder;
    archive::Place usual() const override {
        return archive::parsePlace(folder.path("archive.sqlite")).value();
    }
};

// The data text of a recording: readings in tenths, oldest first; the header carries the time given.
std::string dataFile(char modeLetter, const std::vector<int>& tenths, char typeLetter = 'X', bool low = false,
                     const std::string& time = "03-15-24 10:00");

// A main window on doubles. Files are put in memory and opened through File > Open.
class WindowTest : public ::testing::Test {
protected:
    Recordings recordings;
    Display display;
    MemorySettings settings;
    MemoryFiles files;
    FixedClock clock;
    QueuedPrompt prompt;
    QueuedChooser chooser;
    VirtualWaiter waiter;
    VirtualLine line{waiter};
    MemoryJournal journal;
    InstrumentState instrument;
    FreePorts ports;
    int callPoint = 0;
    SessionServices session{
        line, waiter, prompt, instrument, journal, callPoint, [this] { waiter.cancelNow(); }};
    InstrumentPlaces places{ports, "/work", "/tmp/temp.dat"};
    FolderArchives archives;
    SafeFile archiveFiles;
    std::vector<std::string> chosenPaths; // by the dialogs of the archive
    ArchiveServices archive{archives, archiveFiles,
                            [this](const std::string&) {
                                return chosenPaths.empty() ? std::nullopt : std::optional(chosenPaths[0]);
                            },
                            [this](const std::string&) { return chosenPaths; }};
    Services services{recordings, display, settings, files,  clock,
                      prompt,     chooser, session,  places, &archive};
    TLY window{services};

    // Puts a file in memory and opens it by the menu.
    void open(const std::string& path, const std::string& bytes);
    QAction& item(const char* name) { return window.menus().item(name); }
    bool enabled(const char* name) { return item(name).isEnabled(); }
    void click(const char* name) { item(name).trigger(); }
    QString remark() const { return window.findChild<QLabel*>(QStringLiteral("PanelRemark"))->text(); }
    // Drags a span over points of the plot, as the mouse does.
    void mark(int first, int last);
    // Runs when the next dialog is open.
    template <typename Form>
    void whenOpen(std::function<void(Form&)> action) {
        QTimer::singleShot(0, &window, [action] {
            auto* form = dynamic_cast<Form*>(QApplication::activeModalWidget());
            ASSERT_NE(form, nullptr) << "no such dialog is open";
            action(*form);
        });
    }
};

} // namespace tally::testing
