// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Instruments.h"

#include <QDialog>

class QButtonGroup;
class QGroupBox;

namespace tally {

// "InstProperties": baud rate and sample limit in force. They can be changed for the Custom type alone.
class InstProperties : public QDialog {
    Q_OBJECT

public:
    InstProperties(InstrumentState& instrument, QWidget* parent);
    void accept() override;

private:
    QGroupBox* addFrame(const QString& name, const QString& title);

    InstrumentState& instrument_;
    QButtonGroup* baud_;
    QButtonGroup* samples_;
};

} // namespace tally
