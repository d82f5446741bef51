// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/Json.h"
#include "cli/OpenFiles.h"
#include "platform/FilePath.h"
#include "survey/SurveyDesk.h"
#include "survey/SurveyReport.h"
#include "view/forms/Paper.h"

namespace tally::cli {

namespace {

struct Options {
    std::string station;
    std::vector<std::string> feeders;
    std::shared_ptr<bool> json;
    std::string pdf;
};

struct FeederOption {
    std::string name;
    std::array<std::string, phaseCount> files;
};

// NAME:RED,WHITE,BLUE
FeederOption parseFeeder(const std::string& text) {
    const auto wrong = [&] { return WrongUsage("--feeder: '" + text + "' is not NAME:RED,WHITE,BLUE"); };
    const auto colon = text.find(':');
    if (colon == std::string::npos)
        throw wrong();
    FeederOption feeder{text.substr(0, colon), {}};
    auto from = colon + 1;
    for (std::size_t phase = 0; phase < feeder.files.size(); ++phase) {
        const bool last = phase + 1 == feeder.files.size();
        const auto comma = text.find(',', from);
        if ((comma == std::string::npos) != last)
            throw wrong();
        feeder.files[phase] = text.substr(from, comma - from);
        if (feeder.files[phase].empty())
            throw wrong();
        from = comma + 1;
    }
    return feeder;
}

void processFeeder(Context& context, SurveyDesk& desk, int number, const FeederOption& feeder) {
    desk.proceed(number, feeder.name);
    for (int phase = 0; phase < phaseCount; ++phase) {
        const std::string file = absolutePath(feeder.files[static_cast<std::size_t>(phase)]);
        if (const auto loaded = desk.load(phase, file, context.files()); !loaded)
            throw Refused(loaded.error());
    }
    desk.showResult();
}

Json peaksOf(const FeederPeaks& peaks) {
    Json list = Json::array();
    for (int phase = 0; phase < phaseCount; ++phase) {
        const PhasePeak& peak = peaks[static_cast<std::size_t>(phase)];
        list.push_back({{"phase", std::string(phaseName(phase))},
                        {"index", peak.index},
                        {"amps", peak.currents},
                        {"sum", static_cast<int>(peak.sum)},
                        {"time", formatTime(peak.time, peakTime)}});
    }
    return list;
}

Json jsonOf(const SurveyData& survey, int feeders) {
    Json list = Json::array();
    Json atPeak = Json::array();
    for (std::size_t feeder = 0; feeder < static_cast<std::size_t>(feeders); ++feeder) {
        list.push_back(
            {{"name", survey.feederNames[feeder]}, {"peaks", peaksOf(*survey.feederPeaks[feeder])}});
        atPeak.push_back(*survey.stationPeak->feeders[feeder]);
    }
    return {{"station", survey.stationName},
            {"feeders", list},
            {"stationPeak",
             {{"index", survey.stationPeak->index},
              {"total", survey.stationPeak->total},
              {"time", screenTime(survey.stationPeak->time)},
              {"feeders", atPeak}}}};
}

std::string textOf(const SurveyData& survey, int feeders) {
    std::string text = std::string(resultTitle) + "\r\n" + stationLabel(survey) + "\r\n" +
                       std::string(resultCaption) + "\r\n";
    for (int feeder = 0; feeder < feeders; ++feeder)
        text += "\r\n" + feederLabel(survey, feeder) + "\r\n" + feederResult(survey, feeder);
    return text + "\r\n" + std::string(stationCaption) + "\r\n" + stationReport(survey);
}

void writePdf(Context& context, const SurveyData& survey, const std::string& path) {
    context.needPainting();
    const ReadingTime now = context.clock().localTime();
    const SurveyPaper paper = stationPaper(survey, now);
    writeFile(context, path,
              pdfOfText({.title = paper.title,
                         .heading = {},
                         .text = paper.text,
                         .user = context.settings().get("Security", "userid"),
                         .date = formatTime(now, "%b-%d-%Y")}));
}

int run(Context& context, const Options& options) {
    std::vector<FeederOption> feeders;
    for (const std::string& text : options.feeders)
        feeders.push_back(parseFeeder(text));
    const int count = static_cast<int>(feeders.size());
    if (count > feederCount)
        throw WrongUsage("A survey takes at most four feeders");
    if (!options.pdf.empty())
        endingOf(options.pdf, {"pdf"}, "--print");
    SurveyData survey;
    beginSurvey(survey, options.station);
    SurveyDesk desk(survey);
    for (int feeder = 0; feeder < count; ++feeder)
        processFeeder(context, desk, feeder, feeders[static_cast<std::size_t>(feeder)]);
    desk.showStationPeak();
    for (const std::string& notice : survey.notices)
        context.warn(notice);
    if (!options.pdf.empty())
        writePdf(context, survey, options.pdf);
    if (*options.json)
        outJson(context, jsonOf(survey, count));
    else
        context.out(textOf(survey, count));
    return status::done;
}

} // namespace

void addSurvey(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(program, shared, "survey", "the peaks of a station's feeders",
                                   [options](Context& context) { return run(context, *options); });
    command.add_option("--station", options->station, "name of the station")->required();
    command
        .add_option("--feeder", options->feeders,
                    "NAME:RED,WHITE,BLUE, the feeder's three files; up to four times")
        ->required()
        ->allow_extra_args(false);
    options->json = addJson(command);
    command.add_option("--print", options->pdf, "write the printed report as PDF")->check(whyEmpty);
}

} // namespace tally::cli
