// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QGroupBox;
class QLabel;
class QRadioButton;

namespace tally {

struct ModeChoice;

// "InitInst": the options of an initialization. Proceed accepts it.
class InitInst : public QDialog {
    Q_OBJECT

public:
    // `known` is the line about downloads that an initialization could make the only copy of; `lasts` says
    // how long the memory lasts at a choice.
    InitInst(const std::string& known, std::function<std::string(const ModeChoice&)> lasts, QWidget* parent);

    ModeChoice choice() const;

private:
    QGroupBox* addFrame(const QString& name, const QString& title);
    QRadioButton* addOption(QGroupBox& frame, int number, const QString& caption);

    void showHowLong();

    std::function<std::string(const ModeChoice&)> lasts_;
    QLabel* howLong_;
    QRadioButton* fiveMinutes_;
    QRadioButton* oneMinute_;
    QRadioButton* minMaxAvg_;
    QRadioButton* stopWhenFull_;
};

} // namespace tally
