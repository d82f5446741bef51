// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace tally {

// The choice of the default directory, in the main window: "Drive1" (drives, or home and mounted volumes),
// the folders below it, "Command1" to take the folder and "Command2" to leave it. Hidden until it is asked
// for.
class FolderChoice : public QFrame {
    Q_OBJECT

public:
    explicit FolderChoice(QWidget* parent = nullptr);

    // Starts at a folder; at the first place of the list when it is not there.
    void open(const QString& folder);
    QString folder() const { return folder_; }

Q_SIGNALS:
    void chosen(const QString& folder);

private:
    void fillDrives();
    void enter(const QString& folder);

    QComboBox* drives_;
    QListWidget* folders_;
    QLabel* place_;
    QPushButton* take_;
    QPushButton* leave_;
    QString folder_;
};

} // namespace tally
