// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/forms/Station.h"

#include "survey/SurveyReport.h"
#include "survey/forms/SurveyText.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tally {

Station::Station(const SurveyData& survey, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("station"));
    setWindowTitle(QStringLiteral("Station Peak"));
    auto* close = new QPushButton(QStringLiteral("CLOSE WINDOW"));
    close->setObjectName(QStringLiteral("Command1"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* down = new QVBoxLayout(this);
    down->addWidget(surveyLabel(QStringLiteral("Label1"), stationCaption, true));
    down->addWidget(surveyLabel(QStringLiteral("Label2"), survey.stationName));
    down->addWidget(reportBox(stationReport(survey)), 1);
    down->addWidget(close, 0, Qt::AlignRight);
    close->setFocus();
}

} // namespace tally
