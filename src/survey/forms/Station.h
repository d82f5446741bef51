// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace tally {

struct SurveyData;

// "Station Peak": the currents of every feeder at the station's peak.
class Station : public QDialog {
    Q_OBJECT

public:
    explicit Station(const SurveyData& survey, QWidget* parent = nullptr);
};

} // namespace tally
