// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Endings.h"
#include "cli/Json.h"
#include "cli/PowerOptions.h"
#include "view/FilesTogether.h"
#include "view/PlotModel.h"
#include "view/forms/ChartPicture.h"

#include <charconv>

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::vector<std::string>> files;
    std::shared_ptr<RangeOptions> range;
    std::shared_ptr<PowerOptions> power;
    std::shared_ptr<bool> json;
    std::shared_ptr<bool> align;
    std::string to;
    std::string show = "avg";
    std::optional<std::string> yMin;
    std::string size = "1200x700";
    bool asPower = false;
};

QSize sizeOf(const std::string& text) {
    int width = 0;
    int height = 0;
    const auto end = text.data() + text.size();
    const auto [cross, badWidth] = std::from_chars(text.data(), end, width);
    if (badWidth == std::errc() && cross != end && *cross == 'x') {
        const auto [stopped, badHeight] = std::from_chars(cross + 1, end, height);
        const auto fits = [](int pixels) { return pixels >= pictureMinimum && pixels <= pictureMaximum; };
        if (badHeight == std::errc() && stopped == end && fits(width) && fits(height))
            return {width, height};
    }
    throw WrongUsage("--size: '" + text + "' is no size such as 1200x700 (each side " +
                     std::to_string(pictureMinimum) + " to " + std::to_string(pictureMaximum) + ")");
}

Statistic statisticOf(const std::string& name) {
    return name == "max" ? Statistic::maximum : name == "min" ? Statistic::minimum : Statistic::average;
}

Json jsonOf(const Plot& plot) {
    Json series = Json::array();
    for (const PlotSeries& one : plot.series)
        series.push_back({{"legend", one.legend}, {"points", one.values.size()}});
    return {{"title", plot.title},
            {"ytitle", plot.yTitle},
            {"ymin", plot.yMin},
            {"ymax", plot.yMax},
            {"labels", plot.labels},
            {"series", series},
            {"extremeMin", plot.extremeMin},
            {"extremeMax", plot.extremeMax}};
}

Plot draw(Context& context, OpenFiles& open, const Options& options) {
    if (options.yMin)
        open.display.setScale(*options.yMin);
    open.display.setStatistic(statisticOf(options.show));
    const PlotRequest request = open.display.plotRequest(open.recordings);
    if (!options.asPower)
        return DisplPlot(open.recordings, request, context.clock());
    return DisplPlotPwr(open.recordings, request, powerOfFiles(context, open, *options.power),
                        context.clock());
}

void writePicture(Context& context, const Plot& plot, const std::string& path, QSize size) {
    context.needPainting();
    const std::string bytes = pictureBytes(plot, {}, *pictureKind(path), size);
    if (bytes.empty())
        throw Refused("There is no memory for a picture of that size. Take a smaller --size.");
    writeFile(context, path, bytes);
}

int run(Context& context, const Options& options) {
    const QSize size = sizeOf(options.size);
    if (options.to.empty() && !*options.json)
        throw WrongUsage("Name the picture to write with -o, or ask for --json");
    if (!options.to.empty())
        endingOf(options.to, {"png", "pdf", "svg"});
    OpenFiles open = openTogether(context, *options.files, *options.range, *options.align);
    const Plot plot = draw(context, open, options);
    if (const std::string shorter = shorterFiles(open.recordings); !shorter.empty())
        context.warn(shorter);
    warnTogether(context, open);
    if (!options.to.empty())
        writePicture(context, plot, options.to, size);
    if (*options.json)
        outJson(context, jsonOf(plot));
    return 0;
}

} // namespace

void addPlot(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(program, shared, "plot", "draw one to three files as PNG, PDF or SVG",
                                   [options](Context& context) { return run(context, *options); });
    options->files = addFiles(command);
    options->range = addRange(command);
    options->power = addPowerOptions(command);
    options->json = addJson(command);
    options->align = addAlign(command);
    command.add_option("-o,--output", options->to, "the picture to write, .png, .pdf or .svg")
        ->check(whyEmpty);
    command.add_option("--show", options->show, "what several Min/Max/Avg files show")
        ->check(CLI::IsMember({"avg", "max", "min"}));
    command.add_option("--ymin", options->yMin, "minimum of the y axis, a whole number");
    command.add_flag("--power", options->asPower, "draw kilowatts");
    command.add_option("--size", options->size, "width and height in pixels")->capture_default_str();
}

} // namespace tally::cli
