// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/SurveyDesk.h"

#include "core/Fileopen.h"
#include "core/Fileopenera.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "core/TimeAxis.h"
#include "survey/Peaks.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::array<std::string_view, phaseCount> phaseNames = {"red", "white", "blue"};

std::string placeOf(const SurveyData& survey, int feeder, int phase) {
    return survey.feederNames.at(static_cast<std::size_t>(feeder)) + ", " + std::string(phaseName(phase)) +
           " phase";
}

// ASCII letters and the accented ones of Western Europe, whose first byte is C3.
std::string upperCased(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        const bool afterLead = i > 0 && static_cast<unsigned char>(text[i - 1]) == 0xC3;
        if (afterLead && c >= 0xA0 && c <= 0xBE && c != 0xB7)
            text[i] = static_cast<char>(c - 0x20);
        else
            text[i] = upperCase(text[i]);
    }
    return text;
}

} // namespace

bool startSurvey(SurveyData& survey, Prompt& prompt) {
    for (;;) {
        const auto name = prompt.input({.text = std::string(stationNamePrompt), .preset = {}});
        if (!name)
            return false;
        // A report without the name of its station is of no use.
        if (name->find_first_not_of(' ') == std::string::npos)
            continue;
        beginSurvey(survey, *name);
        return true;
    }
}

void beginSurvey(SurveyData& survey, const std::string& station) {
    survey = {};
    survey.stationName = upperCased(station);
}

std::string defaultFeederName(int feeder) {
    return "Feeder" + std::to_string(feeder + 1);
}

std::string_view phaseName(int phase) {
    return phaseNames.at(static_cast<std::size_t>(phase));
}

SurveyControls SurveyDesk::controls() const {
    SurveyControls controls;
    bool anyLeft = false;
    for (std::size_t feeder = 0; feeder < chosen_.size(); ++feeder) {
        controls.options[feeder] = !chosen_[feeder];
        anyLeft = anyLeft || !chosen_[feeder];
        controls.printFeeders = controls.printFeeders || survey_.feederPeaks[feeder].has_value();
    }
    // A feeder that was chosen can be chosen again, under another name, until its first file is there.
    controls.proceed = loading_ ? survey_.phasesLoaded == 0 : anyLeft;
    const FeederFiles& files = survey_.feeders[static_cast<std::size_t>(survey_.currentFeeder)];
    for (std::size_t phase = 0; phase < files.size(); ++phase)
        controls.phases[phase] = loading_ && !files[phase].loaded();
    controls.showResult = loading_ && survey_.phasesLoaded == phaseCount;
    controls.showStationPeak = controls.printFeeders && coversAnyFeeder(survey_);
    controls.printStation = survey_.stationPeak.has_value();
    return controls;
}

void SurveyDesk::proceed(int feeder, const std::string& typedName) {
    const auto at = static_cast<std::size_t>(feeder);
    survey_.feederNames.at(at) = typedName.empty() ? defaultFeederName(feeder) : typedName;
    survey_.currentFeeder = feeder;
    survey_.phasesLoaded = 0;
    // The peak that was found is not that of the feeders up to this one.
    survey_.stationPeak.reset();
    chosen_.at(at) = true;
    loading_ = true;
    refusal_.clear();
}

const PhaseFile& SurveyDesk::fileOf(const Taken& taken) const {
    return survey_.feeders.at(static_cast<std::size_t>(taken.feeder))
        .at(static_cast<std::size_t>(taken.phase));
}

// What a file of the current feeder is to agree with: the feeder's first file, else that of feeder 1, else
// the first one of all.
const PhaseFile* SurveyDesk::reference() const {
    for (const int feeder : {survey_.currentFeeder, 0})
        for (const Taken& taken : taken_)
            if (taken.feeder == feeder)
                return &fileOf(taken);
    return taken_.empty() ? nullptr : &fileOf(taken_.front());
}

void SurveyDesk::addNotices(const PhaseFile& file, const std::string& place, const Files& files) {
    const std::string name = fileNameOf(file.facts.path);
    const auto add = [&](const std::string& text) { survey_.notices.push_back(place + ": " + name + text); };
    for (const Taken& taken : taken_)
        if (files.same(fileOf(taken).facts.path, file.facts.path))
            add(" is also taken for " + placeOf(survey_, taken.feeder, taken.phase));
    if (const std::string cut = incompleteNotice(file.facts); !cut.empty())
        add(" " + cut);
    if (file.facts.unreadable > 0)
        add(" has " + counted(file.facts.unreadable, "item") +
            " that can be read as no number; each counts with its leading number, or 0");
    const PhaseFile* first = reference();
    if (first == nullptr)
        return;
    const std::string firstName = fileNameOf(first->facts.path);
    const std::string apart =
        startsApart(name, firstName, file.facts.start.minutes - first->facts.start.minutes);
    if (!apart.empty())
        survey_.notices.push_back(place + ": " + apart);
    if (file.readings.size() != first->readings.size())
        add(" has " + counted(std::int64_t(file.readings.size()), "reading") + ", " + firstName + " " +
            std::to_string(first->readings.size()) + "; the shortest count is scanned");
}

Expected<Recording> SurveyDesk::phaseFile(const Files& files, const std::string& path) const {
    Expected<Recording> recording = Fileopenera(files, path);
    if (!recording)
        return recording;
    const PhaseFile* first = reference();
    if (first != nullptr && recording->facts.modeLetter != first->facts.modeLetter)
        return refuse(unknownFileError, path,
                      "Mode mixing not allowed. Choose a file of the mode of " +
                          fileNameOf(first->facts.path) + ".");
    if (recording->facts.unit() == 'V')
        return refuse("Not a current file", path,
                      "It is a recording of voltage. Choose the recording of the phase's current.");
    return recording;
}

Expected<void> SurveyDesk::load(int phase, const std::string& path, const Files& files) {
    Expected<Recording> recording = phaseFile(files, path);
    if (!recording) {
        refusal_ = fileNameOf(path) + ": " + recording.error().advice;
        return tl::make_unexpected(recording.error());
    }
    PhaseFile file{std::move(recording->facts), std::move(recording->readings)};
    file.facts.path = path;
    addNotices(file, placeOf(survey_, survey_.currentFeeder, phase), files);
    taken_.push_back({survey_.currentFeeder, phase});
    survey_.feeders.at(static_cast<std::size_t>(survey_.currentFeeder)).at(static_cast<std::size_t>(phase)) =
        std::move(file);
    shownFiles_.at(static_cast<std::size_t>(phase)) = path;
    ++survey_.phasesLoaded;
    survey_.stationPeak.reset();
    refusal_.clear();
    return {};
}

Expected<void> SurveyDesk::askAndLoad(int phase, const std::string& folder, const Files& files,
                                      Prompt& prompt) {
    const auto path = prompt.chooseFile({.filter = std::string(surveyFileFilter), .folder = folder});
    return path ? load(phase, *path, files) : Expected<void>();
}

void SurveyDesk::showResult() {
    const auto at = static_cast<std::size_t>(survey_.currentFeeder);
    survey_.feederPeaks[at] = feederPeaksOf(survey_.feeders[at]);
    shownFiles_ = {};
    loading_ = false;
}

void SurveyDesk::showStationPeak() {
    survey_.stationPeak.reset();
    findStationPeak(survey_);
}

} // namespace tally
