// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/InstProperties.h"

#include "link/forms/DialogText.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

namespace tally {

namespace {

struct BaudOption {
    const char* caption;
    const char* settings;
};
constexpr std::array<BaudOption, 2> baudOptions = {{{"9,600", "9600,N,8,1"}, {"115,200", "115200,N,8,1"}}};

struct SamplesOption {
    const char* caption;
    std::int32_t samples;
};
constexpr std::array<SamplesOption, 5> samplesOptions = {{{"42,966  (512 kbit eeprom)", 42966},
                                                          {"21,462  (256 kbit eeprom)", 21462},
                                                          {"10,710  (128 kbit eeprom)", 10710},
                                                          {"     294  (Special Test)", 294},
                                                          {"  2,091  (Original PQX)", 2091}}};

QRadioButton* addOption(QGroupBox& frame, QButtonGroup& group, const char* caption, int position) {
    auto* option = new QRadioButton(QString::fromLatin1(caption));
    option->setObjectName(QStringLiteral("Option%1").arg(position));
    frame.layout()->addWidget(option);
    group.addButton(option, int(group.buttons().size()));
    return option;
}

} // namespace

InstProperties::InstProperties(InstrumentState& instrument, QWidget* parent)
    : QDialog(parent),
      instrument_(instrument),
      baud_(new QButtonGroup(this)),
      samples_(new QButtonGroup(this)) {
    setObjectName(QStringLiteral("InstProperties"));
    setWindowTitle(QStringLiteral("Instrument Properties"));
    auto* down = new QVBoxLayout(this);
    QGroupBox* frame = addFrame(QStringLiteral("Frame1"), QStringLiteral("Baud Rate"));
    int position = 0;
    for (const BaudOption& option : baudOptions)
        addOption(*frame, *baud_, option.caption, ++position)
            ->setChecked(instrument.portSettings == option.settings);
    frame = addFrame(QStringLiteral("Frame2"), QStringLiteral("Maximum Samples"));
    for (const SamplesOption& option : samplesOptions)
        addOption(*frame, *samples_, option.caption, ++position)
            ->setChecked(instrument.maxSamples == option.samples);
    for (QAbstractButton* option : samples_->buttons()) // laid out with blanks
        option->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("OK"));
    ok->setDefault(true);
    ok->setEnabled(hasOwnProperties(instrument));
    connect(ok, &QPushButton::clicked, this, &InstProperties::accept);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("CancelButton"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    down->addLayout(buttons);
}

QGroupBox* InstProperties::addFrame(const QString& name, const QString& title) {
    auto* frame = new QGroupBox(title);
    frame->setObjectName(name);
    new QVBoxLayout(frame);
    layout()->addWidget(frame);
    return frame;
}

void InstProperties::accept() {
    // With nothing checked the value in force stays.
    const int baud = baud_->checkedId();
    const int samples = samples_->checkedId();
    setProperties(instrument_,
                  baud < 0 ? instrument_.portSettings : baudOptions.at(std::size_t(baud)).settings,
                  samples < 0 ? instrument_.maxSamples : samplesOptions.at(std::size_t(samples)).samples);
    QDialog::accept();
}

} // namespace tally
