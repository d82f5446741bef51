// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "core/Recordings.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QListWidget;
class QScrollBar;

namespace tally {

// "Select Data": which of the open files a command works on.
class DataSelect : public QDialog {
    Q_OBJECT

public:
    DataSelect(const Recordings& recordings, Prompt& prompt, QWidget* parent = nullptr);

    // A slot 0 to 2, or -2 when cancelled.
    int ginx() const { return ginx_; }

private:
    void List1_Click();
    void HScroll1_Change();
    void Command1_Click();
    void Command3_Click();
    std::string scrollData() const;

    const Recordings& recordings_;
    Prompt& prompt_;
    QListWidget* list_;
    QScrollBar* scroll_;
    QLabel* details_;
    int chosen_ = 0;
    int ginx_ = Recordings::cancelled;
};

// Asks with the form, over the window that is given.
class AppSlotChooser : public SlotChooser {
public:
    explicit AppSlotChooser(Prompt& prompt) : prompt_(prompt) {}
    void setWindow(QWidget* window) { window_ = window; }
    int choose(const Recordings& recordings, int pendingCommand) override;

private:
    Prompt& prompt_;
    QPointer<QWidget> window_;
};

} // namespace tally
