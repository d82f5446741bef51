// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Refusal.h"
#include "survey/SurveyData.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tally {

struct Recording;

inline constexpr std::string_view stationNamePrompt = "\rEnter Station Name";
inline constexpr std::string_view surveyFileFilter = "data files (*.dat) | *.dat";

// Asks for the station name, an empty one again, and empties the survey for it; false, and nothing changed,
// when cancelled.
bool startSurvey(SurveyData& survey, Prompt& prompt);
// The same with a name that is known.
void beginSurvey(SurveyData& survey, const std::string& station);

// "Feeder1" to "Feeder4" for feeder 0 to 3.
std::string defaultFeederName(int feeder);
// "red", "white", "blue" for phase 0 to 2.
std::string_view phaseName(int phase);

// Which controls of the survey's dialog can be used.
struct SurveyControls {
    std::array<bool, feederCount> options{true, true, true, true}; // Option1 to Option4
    bool proceed = true;                                           // Command1
    std::array<bool, phaseCount> phases{};                         // red, white, blue
    bool showResult = false;                                       // Command2
    bool showStationPeak = false;                                  // Command3
    bool printFeeders = false;                                     // Command4
    bool printStation = false;                                     // Command5
};

// The steps of a survey in the order in which the dialog allows them.
class SurveyDesk {
public:
    explicit SurveyDesk(SurveyData& survey) : survey_(survey) {}

    const SurveyData& survey() const { return survey_; }
    SurveyControls controls() const;
    // The files taken for the current feeder's phases (paths), as the dialog shows them; cleared with its
    // result.
    const std::array<std::string, phaseCount>& shownFiles() const { return shownFiles_; }
    // Why the last file was refused and what may be done, in one line; empty when it was taken.
    const std::string& refusal() const { return refusal_; }

    // PROCEED with feeder 0 to 3 and the name typed; an empty one becomes the default name.
    void proceed(int feeder, const std::string& typedName);
    // Loads phase 0 to 2 of the current feeder. What is refused changes nothing; what is unusual is added to
    // the notices of the survey.
    Expected<void> load(int phase, const std::string& path, const Files& files);
    // The same after asking for the file; nothing when the question was cancelled.
    Expected<void> askAndLoad(int phase, const std::string& folder, const Files& files, Prompt& prompt);
    // Works out the current feeder's peaks.
    void showResult();
    // Works out the station peak. Throws Overflow; then there is none.
    void showStationPeak();

private:
    struct Taken {
        int feeder;
        int phase;
    };

    Expected<Recording> phaseFile(const Files& files, const std::string& path) const;
    const PhaseFile& fileOf(const Taken& taken) const;
    const PhaseFile* reference() const;
    void addNotices(const PhaseFile& file, const std::string& place, const Files& files);

    SurveyData& survey_;
    std::array<bool, feederCount> chosen_{};
    std::array<std::string, phaseCount> shownFiles_;
    std::vector<Taken> taken_; // in the order of loading
    std::string refusal_;
    bool loading_ = false; // between PROCEED and the feeder's result
};

} // namespace tally
