// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/ArchiveForm.h"

#include "app/forms/NoticeBar.h"
#include "archive/forms/AddBar.h"
#include "archive/forms/Adder.h"
#include "archive/forms/CalendarView.h"
#include "archive/forms/GrowthView.h"
#include "archive/forms/RecordingTable.h"
#include "archive/forms/SearchBar.h"
#include "core/forms/Words.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>

namespace tally::archive {

namespace {

QLabel* plainLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ArchiveForm::ArchiveForm(FormServices services, QWidget* parent)
    : QWidget(parent, Qt::Window),
      services_(std::move(services)),
      state_(plainLabel("archiveState", this)),
      automatic_(new QCheckBox(QStringLiteral("&Downloads and saves go in by themselves"), this)),
      notices_(new NoticeBar(this)),
      search_(new SearchBar(this)),
      tabs_(new QTabWidget(this)),
      calendar_(new CalendarView(this)),
      growth_(new GrowthView(this)),
      adding_(new AddBar(services_.adder, this)),
      reader_(services_.archives),
      worker_(services_.archives) {
    setObjectName(QStringLiteral("Archive"));
    setWindowTitle(QStringLiteral("Archive - Tallyline"));
    automatic_->setObjectName(QStringLiteral("archiveAutomatic"));
    auto* scroll = new QScrollArea(this);
    scroll->setWidget(calendar_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    tabs_->setObjectName(QStringLiteral("archiveTabs"));
    tabs_->addTab(makeRecordings(), QStringLiteral("&Recordings"));
    tabs_->addTab(scroll, QStringLiteral("&Calendar"));
    tabs_->addTab(growth_, QStringLiteral("&Growth"));
    auto* foot = new QHBoxLayout;
    foot->addWidget(state_, 1);
    foot->addWidget(automatic_);
    auto* down = new QVBoxLayout(this);
    down->addWidget(makeHead());
    down->addWidget(notices_);
    down->addWidget(search_);
    down->addWidget(tabs_, 1);
    down->addWidget(adding_);
    down->addLayout(foot);
    resize(1180, 660);
    connectParts();
    showAutomatic();
    selectionIs(0);
    usePlace();
}

ArchiveForm::~ArchiveForm() = default;

QWidget* ArchiveForm::makeHead() {
    auto* row = new QWidget(this);
    auto* across = new QHBoxLayout(row);
    across->setContentsMargins(0, 0, 0, 0);
    place_ = plainLabel("archivePlace", row);
    place_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    sum_ = plainLabel("archiveSum", row);
    sum_->setContentsMargins(12, 0, 0, 0);
    across->addWidget(place_);
    across->addWidget(sum_, 1);
    addButton(*across, "archiveAddFiles", "Add &Files...", "Keep data files and their notes in the archive",
              &ArchiveForm::addFiles, false);
    addButton(*across, "archiveAddFolder", "Add F&older...",
              "Keep all data files of a folder and of the folders below it", &ArchiveForm::addFolder, false);
    addButton(*across, "archiveChoosePlace", "Pla&ce...", "Use another archive", &ArchiveForm::choosePlace,
              false);
    return row;
}

QWidget* ArchiveForm::makeRecordings() {
    auto* page = new QWidget(this);
    table_ = new RecordingTable(page);
    auto* down = new QVBoxLayout(page);
    down->addWidget(table_, 1);
    down->addWidget(makeActions());
    return page;
}

QWidget* ArchiveForm::makeActions() {
    auto* row = new QWidget(this);
    auto* across = new QHBoxLayout(row);
    across->setContentsMargins(0, 0, 0, 0);
    addButton(*across, "archiveOpen", "&Open", "Open up to three recordings in the main window",
              &ArchiveForm::openSelected, true);
    addButton(*across, "archiveStudy", "Load Stud&y", "Open up to three recordings and study them",
              &ArchiveForm::study, true);
    addButton(*across, "archiveExport", "&Export...",
              "Write the data files and notes of the chosen recordings into a folder",
              &ArchiveForm::exportSelected, true);
    addButton(*across, "archiveAssign", "&Assign...", "Correct station and circuit of the chosen recordings",
              &ArchiveForm::assign, true);
    addButton(*across, "archivePrint", "Print &List...",
              "Print the chosen recordings as a list, or all that are shown", &ArchiveForm::printList, false);
    across->addStretch(1);
    return row;
}

QPushButton* ArchiveForm::addButton(QLayout& row, const char* name, const char* caption, const char* tip,
                                    void (ArchiveForm::*action)(), bool needsSelection) {
    auto* button = new QPushButton(QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    if (needsSelection)
        needSelection_.push_back(button);
    row.addWidget(button);
    return button;
}

void ArchiveForm::connectParts() {
    connect(search_, &SearchBar::changed, this, &ArchiveForm::askTab);
    connect(tabs_, &QTabWidget::currentChanged, this, &ArchiveForm::askTab);
    connect(table_, &RecordingTable::scrolled, this, &ArchiveForm::askPictures);
    connect(table_, &RecordingTable::selectionChangedTo, this, &ArchiveForm::selectionIs);
    connect(table_, &RecordingTable::doubleClicked, this, &ArchiveForm::openSelected);
    connect(&reader_, &StoreThread::failed, this, &ArchiveForm::problem);
    connect(&worker_, &StoreThread::failed, this, &ArchiveForm::problem);
    connect(&services_.adder, &Adder::ended, this, &ArchiveForm::added);
    connect(automatic_, &QCheckBox::clicked, this, [this](bool on) { services_.choice.setAutomatic(on); });
}

void ArchiveForm::open() {
    show();
    raise();
    activateWindow();
    search_->focusWords();
    refresh();
}

void ArchiveForm::showAutomatic() {
    automatic_->setChecked(services_.choice.automatic() == ArchiveChoice::Automatic::on);
}

bool ArchiveForm::mayLeave() {
    if (!services_.adder.running())
        return true;
    if (services_.prompt.show({.text = "Recordings are still being added to the archive.\r\nStop? What was "
                                       "added so far stays; adding again goes on from there.",
                               .buttons = Buttons::YesNo,
                               .exclamation = true,
                               .defaultAnswer = Answer::No}) != Answer::Yes)
        return false;
    services_.adder.stop();
    return true;
}

void ArchiveForm::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayLeave());
}

} // namespace tally::archive
