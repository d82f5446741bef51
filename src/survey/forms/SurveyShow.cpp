// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/forms/SurveyShow.h"

#include "survey/SurveyReport.h"
#include "survey/forms/SurveyText.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tally {

SurveyShow::SurveyShow(const SurveyData& survey, int feeder, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("surveyshow"));
    setWindowTitle(QStringLiteral("RESULT"));
    auto* next = new QPushButton(QStringLiteral("NEXT FEEDER"));
    next->setObjectName(QStringLiteral("Command2"));
    next->setDefault(true);
    connect(next, &QPushButton::clicked, this, &QDialog::accept);
    auto* title = surveyLabel(QStringLiteral("Label1"), resultTitle, true);
    title->setAlignment(Qt::AlignHCenter);
    auto* down = new QVBoxLayout(this);
    down->addWidget(title);
    down->addWidget(surveyLabel(QStringLiteral("Label2"), stationLabel(survey)));
    down->addWidget(surveyLabel(QStringLiteral("feederID"), feederLabel(survey, feeder)));
    down->addWidget(surveyLabel(QStringLiteral("Label3"), resultCaption));
    down->addWidget(reportBox(feederResult(survey, feeder)), 1);
    down->addWidget(next, 0, Qt::AlignRight);
    next->setFocus();
}

} // namespace tally
