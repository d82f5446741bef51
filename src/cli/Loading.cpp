// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/OpenFiles.h"
#include "cli/StudyJson.h"
#include "cli/TypedNumber.h"
#include "core/Numbers.h"
#include "study/TransformerLoading.h"

namespace tally::cli {

namespace {

constexpr const char* voltsText = "A transformer's loading needs a file of amps";

struct Options {
    std::shared_ptr<std::string> file;
    std::shared_ptr<RangeOptions> range;
    std::shared_ptr<bool> json;
    TypedNumber rated, ambient, topOilRise, gradient, hotSpotFactor, lossRatio;
    std::string cooling = study::coolingNames.front();
    std::string paper = study::paperNames.front();
};

study::Transformer transformerOf(const Options& options) {
    const auto cooling = study::coolingOf(options.cooling);
    if (!cooling)
        throw WrongUsage("--cooling: '" + options.cooling +
                         "' is none of distribution, onan, onaf, of and od");
    const auto paper = study::paperOf(options.paper);
    if (!paper)
        throw WrongUsage("--paper: '" + options.paper + "' is neither normal nor upgraded");
    study::Transformer transformer = study::usualTransformer(*cooling);
    transformer.paper = *paper;
    transformer.rated = options.rated.above0();
    if (options.ambient.given())
        transformer.ambient = options.ambient.value();
    if (options.topOilRise.given())
        transformer.topOilRise = options.topOilRise.above0();
    if (options.gradient.given())
        transformer.gradient = options.gradient.above0();
    if (options.hotSpotFactor.given())
        transformer.hotSpotFactor = options.hotSpotFactor.notBelow1();
    if (options.lossRatio.given())
        transformer.lossRatio = options.lossRatio.above0();
    return transformer;
}

std::string shown(ReadingTime time) {
    return formatTime(time, "%Y-%m-%d %H:%M");
}

std::string textOf(const study::LoadSeries& series, const study::Transformer& transformer,
                   const study::TransformerLoading& loading) {
    const auto degrees = [](double value) { return Format(value, "0.0") + " °C"; };
    const auto factor = [](double value) { return Format(value, "0.000"); };
    std::string text = "Transformer loading after IEC 60076-7\n";
    text += series.channel.name + ", " + shown(series.axis.start) + " to " + shown(series.axis.end()) + " (" +
            Format(loading.hours, "0.0") + " hours)\n\n";
    text += "Rated current       " + plain(transformer.rated) + " A\n";
    text += "Ambient             " + degrees(transformer.ambient) + ", constant\n";
    text += "Cooling             " +
            std::string(study::coolingNames[static_cast<std::size_t>(transformer.cooling)]) + "\n";
    text += "Paper               " +
            std::string(study::paperNames[static_cast<std::size_t>(transformer.paper)]) + "\n";
    text += "Top-oil rise        " + Format(transformer.topOilRise, "0.0") + " K\n";
    text += "Hot-spot rise       " + Format(transformer.hotSpotRise(), "0.0") + " K (factor " +
            factor(transformer.hotSpotFactor) + ", gradient " + Format(transformer.gradient, "0.0") + " K)\n";
    text += "Loss ratio          " + factor(transformer.lossRatio) + "\n\n";
    text += "Highest load factor " + factor(loading.kMax) + "\n";
    text += "Hottest hot spot    " + degrees(loading.hotSpotMax.value) + " at " +
            shown(loading.hotSpotMax.at) + "\n";
    text += "Hottest top oil     " + degrees(loading.topOilMax.value) + " at " + shown(loading.topOilMax.at) +
            "\n";
    text += "Relative ageing     " + factor(loading.ageing) + "\n";
    text += "Loss of life        " + Format(loading.lossOfLifeHours, "0.0") + " hours\n";
    return text;
}

int run(Context& context, const Options& options) {
    const study::Transformer transformer = transformerOf(options);
    const OpenFiles open = openFiles(context, {*options.file});
    const auto range = indexRange(*options.range, open.recordings.info(0).count);
    const study::LoadSeries series = valueOrRefused(study::loadSeries(open.recordings, range));
    if (series.channel.unit == study::Unit::volts)
        throw Refused(voltsText);
    const auto loading = study::transformerLoadingOf(series.channel.loads, series.axis, transformer);
    if (*options.json)
        outJson(context, jsonOf(loading, series.axis, transformer));
    else
        context.out(textOf(series, transformer, loading));
    return status::done;
}

void addParameters(CLI::App& command, Options& options) {
    addNumber(command, options.rated, "--rated", "rated current in amps");
    options.rated.option->required();
    addNumber(command, options.ambient, "--ambient", "ambient temperature in °C (20)");
    command.add_option("--cooling", options.cooling, "distribution, onan, onaf, of or od")
        ->capture_default_str();
    addNumber(command, options.topOilRise, "--top-oil-rise", "top-oil rise at rated losses in K");
    addNumber(command, options.gradient, "--gradient", "average winding to oil at rated current in K");
    addNumber(command, options.hotSpotFactor, "--hot-spot-factor", "hot-spot factor");
    addNumber(command, options.lossRatio, "--loss-ratio", "load losses at rated current to no-load losses");
    command.add_option("--paper", options.paper, "normal or upgraded")->capture_default_str();
}

} // namespace

void addLoading(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(program, shared, "loading",
                                   "temperatures and ageing of a transformer that carried a recording",
                                   [options](Context& context) { return run(context, *options); });
    options->file = addFile(command);
    options->range = addRange(command);
    addParameters(command, *options);
    options->json = addJson(command);
}

} // namespace tally::cli
