// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/PortChoice.h"

#include <QDialog>
#include <array>

class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;

namespace tally {

// "PortSel": the eight COM ports with what is behind each, and a button to assign a device to one. OK accepts
// the dialog; Cancel takes the assignments back.
class PortSel : public QDialog {
    Q_OBJECT

public:
    // `commPort` is the port in force.
    PortSel(int commPort, const PortCatalogue& catalogue, Settings& settings, QWidget* parent);

    // The checked port.
    std::optional<int> checked() const;
    void reject() override;

private:
    struct Row {
        QRadioButton* option = nullptr;
        QLabel* state = nullptr;
        QPushButton* assign = nullptr;
        std::string before; // device when the dialog opened
    };

    void addRow(int commPort, QGridLayout& grid);
    void fillMenu(int commPort);
    void assign(int commPort, const std::string& path);
    void showStates();

    const PortCatalogue& catalogue_;
    Settings& settings_;
    std::array<Row, portCount> rows_;
};

// The whole port selection command of the main window `parent`.
void runPortSel(QWidget* parent, InstrumentState& instrument, Line& line, Settings& settings, Prompt& prompt,
                const PortCatalogue& catalogue);

} // namespace tally
