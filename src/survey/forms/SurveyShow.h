// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace tally {

struct SurveyData;

// "RESULT": the peaks of a feeder.
class SurveyShow : public QDialog {
    Q_OBJECT

public:
    SurveyShow(const SurveyData& survey, int feeder, QWidget* parent = nullptr);
};

} // namespace tally
