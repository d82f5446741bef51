// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "survey/SurveyDesk.h"
#include "survey/SurveyReport.h"

#include <QDialog>

#include <array>
#include <functional>
#include <string>

class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;

namespace tally {

class Clock;

// What the survey's dialog works with.
struct SurveyServices {
    const Files& files;
    Prompt& prompt;
    const Clock& clock;
    std::string folder; // where file dialogs start: the default directory
    std::function<void(const SurveyPaper&)> print;
    std::function<void(const SurveyPaper&)> preview;
    // Runs a step that may be refused or end in a fault, and tells which.
    std::function<void(const std::function<Expected<void>()>&)> attempt;
};

// "Load Survey": takes the phase files of up to four feeders and shows and prints their peaks.
class LoadSurv : public QDialog {
    Q_OBJECT

public:
    // The survey has just been started.
    LoadSurv(SurveyData& survey, const SurveyServices& services, QWidget* parent = nullptr);

private:
    void layOut();
    QLayout* feederRow();
    QLayout* phaseRows();
    QLayout* resultRows();
    QPushButton* button(const char* name, const char* caption, void (LoadSurv::*handler)());

    void Command1_Click(); // PROCEED
    void red_Click();
    void white_Click();
    void blue_Click();
    void Command2_Click(); // Show Result
    void Command3_Click(); // Show Station Peak
    void Command4_Click(); // PRINT ALL FEEDER RESULTS
    void Command5_Click(); // PRINT STATION PEAK
    void Cancel_Click();
    void previewFeeders();
    void previewStation();

    void loadPhase(int phase);
    int chosenFeeder() const;
    void chooseNextFeeder();
    void showDefaultName();
    void focusNextStep();
    void refresh();

    SurveyDesk desk_;
    SurveyServices services_;
    std::array<QRadioButton*, feederCount> options_{};
    std::array<QPushButton*, phaseCount> phases_{};
    std::array<QLineEdit*, phaseCount> files_{};
    QLineEdit* name_ = nullptr;
    QPushButton* proceed_ = nullptr;
    QPushButton* result_ = nullptr;
    QPushButton* station_ = nullptr;
    QPushButton* printFeeders_ = nullptr;
    QPushButton* previewFeeders_ = nullptr;
    QPushButton* printStation_ = nullptr;
    QPushButton* previewStation_ = nullptr;
    QScrollArea* noticesArea_ = nullptr;
    QLabel* notices_ = nullptr;
};

} // namespace tally
