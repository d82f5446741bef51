// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/forms/LoadSurv.h"

#include "core/Clock.h"
#include "survey/forms/Station.h"
#include "survey/forms/SurveyShow.h"
#include "survey/forms/SurveyText.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace tally {

namespace {

constexpr int noticeLines = 8;
constexpr int noticeMargins = 40; // pixels beside them, the scroll bar included

} // namespace

LoadSurv::LoadSurv(SurveyData& survey, const SurveyServices& services, QWidget* parent)
    : QDialog(parent), desk_(survey), services_(services) {
    setObjectName(QStringLiteral("loadsurv"));
    setWindowTitle(QStringLiteral("Load Survey"));
    layOut();
    chooseNextFeeder();
    refresh();
    focusNextStep();
}

QPushButton* LoadSurv::button(const char* name, const char* caption, void (LoadSurv::*handler)()) {
    auto* made = new QPushButton(QString::fromLatin1(caption), this);
    made->setObjectName(QString::fromLatin1(name));
    // Enter in the feeder's name is PROCEED, whatever was pressed before.
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, handler);
    return made;
}

void LoadSurv::layOut() {
    auto* station = new QHBoxLayout;
    station->addWidget(surveyLabel(QStringLiteral("Label1"), "Station Name"));
    station->addWidget(surveyLabel(QStringLiteral("Label2"), desk_.survey().stationName, true), 1);
    notices_ = surveyLabel(QStringLiteral("notices"), {});
    notices_->setWordWrap(true);
    notices_->setAccessibleName(QStringLiteral("Notices"));
    notices_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    noticesArea_ = new QScrollArea(this);
    noticesArea_->setFrameShape(QFrame::NoFrame);
    noticesArea_->setWidgetResizable(true);
    noticesArea_->setWidget(notices_);
    auto* down = new QVBoxLayout(this);
    down->setSpacing(14);
    down->addLayout(station);
    down->addLayout(feederRow());
    down->addLayout(phaseRows());
    down->addWidget(noticesArea_);
    down->addStretch(1);
    down->addLayout(resultRows());
    down->addWidget(button("Cancel", "Cancel", &LoadSurv::Cancel_Click), 0, Qt::AlignRight);
    setMinimumWidth(640);
}

QLayout* LoadSurv::feederRow() {
    auto* grid = new QGridLayout;
    auto* row = new QHBoxLayout;
    for (std::size_t feeder = 0; feeder < options_.size(); ++feeder) {
        auto* option = new QRadioButton(words(defaultFeederName(int(feeder))), this);
        option->setObjectName(QStringLiteral("Option%1").arg(feeder + 1));
        connect(option, &QRadioButton::toggled, this, &LoadSurv::showDefaultName);
        row->addWidget(option);
        options_[feeder] = option;
    }
    row->addStretch(1);
    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("Text4"));
    auto* label = surveyLabel(QStringLiteral("Label3"), "EnterFeeder Name or use default");
    label->setBuddy(name_);
    name_->setAccessibleName(label->text());
    proceed_ = button("Command1", "PROCEED", &LoadSurv::Command1_Click);
    proceed_->setDefault(true);
    grid->addLayout(row, 0, 0, 1, 3);
    grid->addWidget(label, 1, 0);
    grid->addWidget(name_, 1, 1);
    grid->addWidget(proceed_, 1, 2);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* LoadSurv::phaseRows() {
    auto* grid = new QGridLayout;
    phases_ = {button("red", "Red  Phase", &LoadSurv::red_Click),
               button("white", "WhitePhase", &LoadSurv::white_Click),
               button("blue", "Blue Phase", &LoadSurv::blue_Click)};
    for (std::size_t phase = 0; phase < files_.size(); ++phase) {
        auto* file = new QLineEdit(this);
        file->setObjectName(QStringLiteral("Text%1").arg(phase + 1));
        file->setReadOnly(true);
        file->setAccessibleName(QStringLiteral("File of the %1 phase").arg(words(phaseName(int(phase)))));
        grid->addWidget(phases_[phase], int(phase), 0);
        grid->addWidget(file, int(phase), 1);
        files_[phase] = file;
    }
    return grid;
}

QLayout* LoadSurv::resultRows() {
    auto* grid = new QGridLayout;
    result_ = button("Command2", "Show Result", &LoadSurv::Command2_Click);
    station_ = button("Command3", "Show Station Peak", &LoadSurv::Command3_Click);
    printFeeders_ = button("Command4", "PRINT ALL FEEDER RESULTS", &LoadSurv::Command4_Click);
    previewFeeders_ = button("previewFeeders", "Preview", &LoadSurv::previewFeeders);
    previewFeeders_->setAccessibleName(QStringLiteral("Preview of all feeder results"));
    printStation_ = button("Command5", "PRINT STATION PEAK", &LoadSurv::Command5_Click);
    previewStation_ = button("previewStation", "Preview", &LoadSurv::previewStation);
    previewStation_->setAccessibleName(QStringLiteral("Preview of the station peak"));
    grid->addWidget(result_, 0, 0);
    grid->addWidget(printFeeders_, 0, 1);
    grid->addWidget(previewFeeders_, 0, 2);
    grid->addWidget(station_, 1, 0);
    grid->addWidget(printStation_, 1, 1);
    grid->addWidget(previewStation_, 1, 2);
    return grid;
}

int LoadSurv::chosenFeeder() const {
    for (std::size_t feeder = 0; feeder < options_.size(); ++feeder)
        if (options_[feeder]->isChecked())
            return int(feeder);
    return desk_.survey().currentFeeder;
}

void LoadSurv::chooseNextFeeder() {
    const SurveyControls controls = desk_.controls();
    for (std::size_t feeder = 0; feeder < options_.size(); ++feeder) {
        if (!controls.options[feeder])
            continue;
        options_[feeder]->setChecked(true);
        break;
    }
    name_->clear();
    showDefaultName();
}

void LoadSurv::showDefaultName() {
    name_->setPlaceholderText(words(defaultFeederName(chosenFeeder())));
}

// Between two feeders: the next one's name or, after the last one, the station peak.
void LoadSurv::focusNextStep() {
    if (proceed_->isEnabled())
        name_->setFocus();
    else
        station_->setFocus();
}

void LoadSurv::refresh() {
    const SurveyControls controls = desk_.controls();
    for (std::size_t feeder = 0; feeder < options_.size(); ++feeder)
        options_[feeder]->setEnabled(controls.options[feeder]);
    for (std::size_t phase = 0; phase < phases_.size(); ++phase) {
        phases_[phase]->setEnabled(controls.phases[phase]);
        const QString file = words(desk_.shownFiles()[phase]);
        files_[phase]->setText(file);
        files_[phase]->setToolTip(file);
    }
    proceed_->setEnabled(controls.proceed);
    result_->setEnabled(controls.showResult);
    station_->setEnabled(controls.showStationPeak);
    printFeeders_->setEnabled(controls.printFeeders);
    previewFeeders_->setEnabled(controls.printFeeders);
    printStation_->setEnabled(controls.printStation);
    previewStation_->setEnabled(controls.printStation);

    QStringList notices;
    for (const std::string& notice : desk_.survey().notices)
        notices.append(words(notice));
    if (!desk_.refusal().empty())
        notices.append(words(desk_.refusal()));
    notices_->setText(notices.join(QLatin1Char('\n')));
    // As high as they are, and scrolled where there are many.
    const int room = noticeLines * notices_->fontMetrics().lineSpacing();
    noticesArea_->setFixedHeight(std::clamp(notices_->heightForWidth(width() - noticeMargins), 0, room));
    noticesArea_->setVisible(!notices.isEmpty());
}

void LoadSurv::Command1_Click() {
    desk_.proceed(chosenFeeder(), name_->text().toStdString());
    refresh();
    phases_.front()->setFocus();
}

void LoadSurv::loadPhase(int phase) {
    services_.attempt(
        [&] { return desk_.askAndLoad(phase, services_.folder, services_.files, services_.prompt); });
    refresh();
    if (result_->isEnabled())
        result_->setFocus();
}

void LoadSurv::red_Click() {
    loadPhase(0);
}

void LoadSurv::white_Click() {
    loadPhase(1);
}

void LoadSurv::blue_Click() {
    loadPhase(2);
}

void LoadSurv::Command2_Click() {
    const int feeder = desk_.survey().currentFeeder;
    desk_.showResult();
    chooseNextFeeder();
    refresh();
    SurveyShow(desk_.survey(), feeder, this).exec();
    focusNextStep();
}

void LoadSurv::Command3_Click() {
    services_.attempt([this]() -> Expected<void> {
        desk_.showStationPeak();
        return {};
    });
    refresh();
    if (desk_.survey().stationPeak)
        Station(desk_.survey(), this).exec();
}

void LoadSurv::Command4_Click() {
    services_.print(feedersPaper(desk_.survey(), services_.clock.localTime()));
}

void LoadSurv::Command5_Click() {
    services_.print(stationPaper(desk_.survey(), services_.clock.localTime()));
}

void LoadSurv::previewFeeders() {
    services_.preview(feedersPaper(desk_.survey(), services_.clock.localTime()));
}

void LoadSurv::previewStation() {
    services_.preview(stationPaper(desk_.survey(), services_.clock.localTime()));
}

void LoadSurv::Cancel_Click() {
    reject();
}

} // namespace tally
