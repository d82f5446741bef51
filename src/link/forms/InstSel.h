// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Instruments.h"

#include <QDialog>
#include <array>

class QGridLayout;
class QPushButton;
class QRadioButton;

namespace tally {

// "InstSel": the instrument types. A type must be clicked before OK; Cancel puts back what was in force.
class InstSel : public QDialog {
    Q_OBJECT

public:
    // `mustSelect`: an operation needs a type and none is chosen.
    InstSel(InstrumentState& instrument, bool mustSelect, QWidget* parent);

    void accept() override;
    void reject() override;

private:
    void addOptions(QGridLayout& grid);
    void addButtons(QGridLayout& grid);
    std::optional<int> checked() const;
    void showProperties();

    InstrumentState& instrument_;
    TypeChoice choice_;
    std::array<QRadioButton*, highestType> options_{};
    QPushButton* ok_ = nullptr;
    QPushButton* properties_ = nullptr;
};

// The whole instrument selection command of the main window `parent`; false when it was cancelled. An
// operation that needs a type while InstrumentState::instSelection is 0 runs it with `mustSelect` first, and
// goes on when instSelection is no longer 0.
bool runInstSel(QWidget* parent, InstrumentState& instrument, bool mustSelect = false);

} // namespace tally
