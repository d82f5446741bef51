// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveChoice.h"
#include "archive/Archives.h"
#include "archive/EntryTexts.h"
#include "archive/GiveFiles.h"
#include "archive/forms/StoreThread.h"
#include "core/Files.h"
#include "core/Prompt.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace tally {
class NoticeBar;
}

namespace tally::archive {

class AddBar;
class Adder;
struct AddOutcome;
class CalendarView;
class GrowthView;
class RecordingTable;
class SearchBar;

// What the form works with.
struct FormServices {
    const Archives& archives;
    ArchiveChoice& choice;
    Adder& adder;
    Files& files; // may be used from any thread
    Prompt& prompt;
    std::function<std::optional<std::string>(const std::string& title)> chooseFolder;
    std::function<std::vector<std::string>(const std::string& title)> chooseFiles;
    // Opens recordings in the main window, and studies them when asked.
    std::function<void(const std::vector<Fetched>& recordings, bool study)> open;
    std::function<void(const PrintedList& list)> print;
};

// "Archive": search, calendar and growth of the recordings of an archive. Whatever takes time runs beside it.
class ArchiveForm : public QWidget {
    Q_OBJECT

public:
    // As many rows as a list shows.
    static constexpr std::size_t shownRows = 500;

    explicit ArchiveForm(FormServices services, QWidget* parent = nullptr);
    ~ArchiveForm() override;

    // Shows the window and asks the archive again.
    void open();
    // Whether what is being added may be given up; asks.
    bool mayLeave();
    // The setting was changed elsewhere.
    void showAutomatic();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeHead();
    QWidget* makeRecordings();
    QWidget* makeActions();
    QPushButton* addButton(QLayout& row, const char* name, const char* caption, const char* tip,
                           void (ArchiveForm::*action)(), bool needsSelection);
    void connectParts();

    void usePlace();
    void choosePlace();
    void makeArchive();
    void problem(const QString& text, bool nothingThere);

    // Questions.
    void refresh();
    void search();
    void found(std::vector<Entry> entries);
    void sum();
    void askPictures();
    void askCalendar();
    void askGrowth();
    void askTab();

    // What is done with recordings.
    void selectionIs(int count);
    void openSelected() { fetch(false); }
    void study() { fetch(true); }
    void fetch(bool study);
    void exportSelected();
    void printList();
    void assign();
    void addFiles();
    void addFolder();
    void add(std::vector<std::string> paths);
    void added(const AddOutcome& outcome, bool quiet);
    void tell(const QString& text);

    FormServices services_;
    QLabel* place_;
    QLabel* sum_;
    QLabel* state_;
    QCheckBox* automatic_;
    NoticeBar* notices_;
    SearchBar* search_;
    QTabWidget* tabs_;
    RecordingTable* table_;
    CalendarView* calendar_;
    GrowthView* growth_;
    AddBar* adding_;
    std::vector<QPushButton*> needSelection_;
    StoreThread reader_; // answers while somebody types
    StoreThread worker_; // what may take longer
};

} // namespace tally::archive
