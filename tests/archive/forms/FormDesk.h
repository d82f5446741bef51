// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/forms/Adder.h"
#include "archive/forms/ArchiveForm.h"
#include "archive/forms/RecordingTable.h"
#include "platform/SafeFile.h"
#include "platform/archive/OpenedArchive.h"
#include "platform/archive/QtArchives.h"
#include "support/MemorySettings.h"
#include "support/QueuedPrompt.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

namespace tally::testing {

// Archives of this machine, behind a server that may be slow or out of reach.
class FarArchives : public QtArchives {
public:
    std::atomic<int> delay = 0; // ms before it answers
    std::atomic<bool> outOfReach = false;
    archive::Place place;

    archive::Opened open(const archive::Place& wanted) const override {
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
        if (outOfReach)
            return refuse("The archive's server is out of reach", wanted.text());
        return QtArchives::open(wanted);
    }
    archive::Place usual() const override { return place; }
};

// The archive's window over an archive in a file; what it asks of the main window is kept.
class FormDesk : public ::testing::Test {
protected:
    FormDesk() {
        archives.place = archive::parsePlace(folder.path("archive.sqlite")).value();
        choice.emplace(settings, archives.place);
        adder = std::make_unique<archive::Adder>(archives, files);
    }

    // Makes an archive of these recordings before the window is there.
    void keep(const std::vector<Sample>& samples) {
        ASSERT_TRUE(initArchive(archives.place));
        const auto store = openArchive(archives.place, archives.tools());
        for (const Sample& sample : samples)
            (*store)->add({keptOf(sample)});
    }
    void openForm() {
        form = std::make_unique<archive::ArchiveForm>(archive::FormServices{
            archives, *choice, *adder, files, prompt, [this](const std::string&) { return chosenFolder; },
            [this](const std::string&) { return chosenFiles; },
            [this](const std::vector<archive::Fetched>& recordings, bool study) {
                opened = recordings;
                studied = study;
            },
            [this](const archive::PrintedList& list) { printed = list; }});
        form->open();
    }
    template <typename Widget>
    Widget& find(const char* name) {
        auto* widget = form->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    void click(const char* name) { find<QPushButton>(name).click(); }
    void type(const char* name, const char* text) {
        find<QLineEdit>(name).setText(QString::fromLatin1(text));
    }
    std::string state() { return find<QLabel>("archiveState").text().toStdString(); }
    archive::RecordingTable& table() { return find<archive::RecordingTable>("recordings"); }
    int rows() { return table().model()->rowCount(); }
    std::string cell(int row, int column) {
        return table().model()->index(row, column).data().toString().toStdString();
    }
    // The words of the notices, a line each.
    std::string notices() {
        std::string all;
        for (const QFrame* notice : form->findChildren<QFrame*>(QStringLiteral("notice")))
            all += notice->findChild<QLabel*>()->text().toStdString() + "\n";
        return all;
    }
    QPushButton* noticeButton(const char* caption) {
        for (const QFrame* notice : form->findChildren<QFrame*>(QStringLiteral("notice")))
            for (QPushButton* button : notice->findChildren<QPushButton*>())
                if (button->text() == QString::fromLatin1(caption))
                    return button;
        return nullptr;
    }
    ::testing::AssertionResult comes(const std::function<bool()>& condition, int most = 10000) {
        return QTest::qWaitFor(condition, most) ? ::testing::AssertionSuccess()
                                                : ::testing::AssertionFailure() << state() << "\n"
                                                                                << notices();
    }
    void select(const std::vector<int>& wanted) {
        table().clearSelection();
        for (const int row : wanted)
            table().selectionModel()->select(table().model()->index(row, 0),
                                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    TemporaryFolder folder;
    FarArchives archives;
    MemorySettings settings;
    SafeFile files;
    QueuedPrompt prompt;
    std::optional<archive::ArchiveChoice> choice;
    std::unique_ptr<archive::Adder> adder;
    std::optional<std::string> chosenFolder;
    std::vector<std::string> chosenFiles;
    std::vector<archive::Fetched> opened;
    bool studied = false;
    std::optional<archive::PrintedList> printed;
    std::unique_ptr<archive::ArchiveForm> form;
};

} // namespace tally::testing
