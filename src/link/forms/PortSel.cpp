// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/PortSel.h"

#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tally {

namespace {

constexpr std::array<const char*, portCount> captions = {"Com1", "Com2", "Com3", "Com4",
                                                         "Com5", "Com6", "Com7", "com8"};

} // namespace

PortSel::PortSel(int commPort, const PortCatalogue& catalogue, Settings& settings, QWidget* parent)
    : QDialog(parent), catalogue_(catalogue), settings_(settings) {
    setObjectName(QStringLiteral("PortSel"));
    setWindowTitle(QStringLiteral("Com Port Selection"));
    auto* frame = new QGroupBox(QStringLiteral("ComPort"));
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(16);
    for (int port = 1; port <= portCount; ++port)
        addRow(port, *grid);
    rows_.at(std::size_t(commPort - 1)).option->setChecked(true);

    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("CancelButton"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    QLabel* hint = namedLabel(QStringLiteral("Hint"));
    hint->setText(tr("Assign puts another device behind a port: an adapter, or the simulated instrument."));
    auto* down = new QVBoxLayout(this);
    down->addWidget(frame);
    down->addWidget(hint);
    down->addLayout(buttons);
    showStates();
}

void PortSel::addRow(int commPort, QGridLayout& grid) {
    Row& row = rows_.at(std::size_t(commPort - 1));
    const QString number = QString::number(commPort);
    row.before = devicePath(commPort, settings_);
    row.option = new QRadioButton(QString::fromLatin1(captions.at(std::size_t(commPort - 1))));
    row.option->setObjectName(QStringLiteral("Option") + number);
    row.state = namedLabel(QStringLiteral("Device") + number);
    row.assign = new QPushButton;
    row.assign->setObjectName(QStringLiteral("Assign") + number);
    row.assign->setText(tr("Assign"));
    row.assign->setAccessibleName(tr("Assign a device to Com%1").arg(commPort));
    row.assign->setToolTip(row.assign->accessibleName());
    row.assign->setAutoDefault(false);
    auto* menu = new QMenu(row.assign);
    menu->setObjectName(QStringLiteral("Devices") + number);
    row.assign->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, commPort] { fillMenu(commPort); });
    grid.addWidget(row.option, commPort - 1, 0);
    grid.addWidget(row.state, commPort - 1, 1);
    grid.addWidget(row.assign, commPort - 1, 2);
}

// What is plugged in may have changed since the dialog opened.
void PortSel::fillMenu(int commPort) {
    QMenu* menu = rows_.at(std::size_t(commPort - 1)).assign->menu();
    menu->clear();
    const std::string standard = defaultDevice(commPort);
    const auto add = [&](QString text, const std::string& path) {
        // An "&" would be taken for the mark of a key.
        QAction* action = menu->addAction(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setData(QString::fromStdString(path));
        action->setCheckable(true);
        action->setChecked(path == devicePath(commPort, settings_));
        connect(action, &QAction::triggered, this, [this, commPort, path] { assign(commPort, path); });
    };
    add(tr("%1 (the usual one)").arg(lines(standard)), standard);
    for (const PortDevice& device : catalogue_.devices())
        if (device.path != standard)
            add(lines(device.text()), device.path);
    showStates();
}

void PortSel::assign(int commPort, const std::string& path) {
    assignDevice(commPort, path, settings_);
    rows_.at(std::size_t(commPort - 1)).option->setChecked(true);
    showStates();
}

void PortSel::showStates() {
    for (int port = 1; port <= portCount; ++port) {
        Row& row = rows_.at(std::size_t(port - 1));
        const QString text = lines(portState(port, catalogue_, settings_).text());
        row.state->setText(text);
        row.option->setAccessibleDescription(text);
    }
}

std::optional<int> PortSel::checked() const {
    for (int port = 1; port <= portCount; ++port)
        if (rows_.at(std::size_t(port - 1)).option->isChecked())
            return port;
    return {};
}

void PortSel::reject() {
    for (int port = 1; port <= portCount; ++port) {
        const std::string& before = rows_.at(std::size_t(port - 1)).before;
        if (devicePath(port, settings_) != before)
            assignDevice(port, before, settings_);
    }
    QDialog::reject();
}

void runPortSel(QWidget* parent, InstrumentState& instrument, Line& line, Settings& settings, Prompt& prompt,
                const PortCatalogue& catalogue) {
    std::optional<int> checked;
    {
        PortSel dialog(instrument.gCommPort, catalogue, settings, parent);
        if (dialog.exec() != QDialog::Accepted)
            return;
        checked = dialog.checked();
    }
    choosePort(checked, instrument, line, settings, prompt);
}

} // namespace tally
