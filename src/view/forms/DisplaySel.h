// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QRadioButton;

namespace tally {

enum class Statistic;

// "displaysel": which statistic the plot of several Min/Max/Avg files shows. exec() gives Accepted when the
// command button was pressed; then chosen() is the answer.
class DisplaySel : public QDialog {
    Q_OBJECT

public:
    explicit DisplaySel(Statistic preset, QWidget* parent = nullptr);
    Statistic chosen() const;

private:
    QRadioButton* average_;
    QRadioButton* minimum_;
    QRadioButton* maximum_;
};

} // namespace tally
