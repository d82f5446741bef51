// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/FolderChoice.h"

#include "platform/Folders.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace tally {

namespace {
const QString up = QStringLiteral("..");
constexpr int listHeight = 160;
} // namespace

FolderChoice::FolderChoice(QWidget* parent)
    : QFrame(parent),
      drives_(new QComboBox(this)),
      folders_(new QListWidget(this)),
      place_(new QLabel(this)),
      take_(new QPushButton(QStringLiteral("Use this folder"), this)),
      leave_(new QPushButton(QStringLiteral("Cancel"), this)) {
    setObjectName(QStringLiteral("FolderChoice"));
    setFrameShape(QFrame::StyledPanel);
    drives_->setObjectName(QStringLiteral("Drive1"));
    drives_->setAccessibleName(QStringLiteral("Drive"));
    folders_->setObjectName(QStringLiteral("Dir1"));
    folders_->setAccessibleName(QStringLiteral("Folders"));
    folders_->setFixedHeight(listHeight);
    place_->setObjectName(QStringLiteral("place"));
    place_->setTextFormat(Qt::PlainText);
    take_->setObjectName(QStringLiteral("Command1"));
    leave_->setObjectName(QStringLiteral("Command2"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel(QStringLiteral("File dialogs start in this folder:"), this), 0, 0);
    grid->addWidget(place_, 0, 1);
    grid->addWidget(drives_, 1, 0, Qt::AlignTop);
    grid->addWidget(folders_, 1, 1, 2, 1);
    grid->addWidget(take_, 1, 2, Qt::AlignTop);
    grid->addWidget(leave_, 2, 2, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    connect(drives_, &QComboBox::activated, this, [this] { enter(drives_->currentData().toString()); });
    connect(folders_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { enter(QDir(folder_).filePath(item->text())); });
    connect(take_, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT chosen(folder_);
    });
    connect(leave_, &QPushButton::clicked, this, &QWidget::hide);
    hide();
}

void FolderChoice::fillDrives() {
    drives_->clear();
    for (const auto& volume : folders::volumes())
        drives_->addItem(QString::fromStdString(volume.label), QString::fromStdString(volume.root));
}

void FolderChoice::open(const QString& folder) {
    fillDrives();
    enter(!folder.isEmpty() && QDir(folder).exists() ? folder : drives_->itemData(0).toString());
    // The longest place that holds the folder is the one that it stands on.
    int best = 0;
    for (int i = 0; i < drives_->count(); ++i)
        if (folder_.startsWith(drives_->itemData(i).toString()) &&
            (!folder_.startsWith(drives_->itemData(best).toString()) ||
             drives_->itemData(i).toString().size() > drives_->itemData(best).toString().size()))
            best = i;
    drives_->setCurrentIndex(best);
    show();
    drives_->setFocus();
}

void FolderChoice::enter(const QString& folder) {
    const QDir dir(QDir::cleanPath(folder));
    folder_ = dir.absolutePath();
    place_->setText(QDir::toNativeSeparators(folder_));
    folders_->clear();
    if (!dir.isRoot())
        folders_->addItem(up);
    folders_->addItems(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
}

} // namespace tally
