// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace tally::ChartFile {
namespace {

using Json = nlohmann::json;

constexpr const char* format = "tallyline-chart";
constexpr int version = 1;
constexpr int maximumPoints = 42967; // readings that a recording can hold
constexpr std::size_t maximumSeries = 12;
constexpr std::size_t maximumNotes = 1000;
constexpr std::size_t maximumText = 64 * 1024; // bytes
constexpr int maximumDepth = 6;
constexpr std::size_t maximumItems =
    1'000'000; // values of all kinds: bounds the memory before anything is looked at

// What is wrong with a file; the message is for people.
struct Bad : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The shortest number that reads back as the same single, so that 12.3 is written as 12.3.
Json number(float value) {
    if (!std::isfinite(value))
        return nullptr;
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    double written = 0;
    std::from_chars(text, end, written);
    return written;
}

Json number(double value) {
    return std::isfinite(value) ? Json(value) : Json(nullptr);
}

const Json& member(const Json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end())
        throw Bad(std::string("\"") + name + "\" is missing");
    return *found;
}

// An object with exactly these members.
void expect(const Json& json, std::initializer_list<const char*> names, const char* what) {
    if (!json.is_object())
        throw Bad(std::string(what) + " is no object");
    for (const auto& item : json.items())
        if (std::find(names.begin(), names.end(), item.key()) == names.end())
            throw Bad(std::string(what) + " holds \"" + item.key().substr(0, 40) + "\", which is unknown");
    for (const char* name : names)
        member(json, name);
}

const Json& list(const Json& object, const char* name, std::size_t maximum) {
    const Json& found = member(object, name);
    if (!found.is_array() || found.size() > maximum)
        throw Bad(std::string("\"") + name + "\" is no list of at most " + std::to_string(maximum));
    return found;
}

std::string text(const Json& object, const char* name) {
    const Json& found = member(object, name);
    if (!found.is_string() || found.get_ref<const std::string&>().size() > maximumText)
        throw Bad(std::string("\"") + name + "\" is no text of a usual length");
    return found.get<std::string>();
}

int whole(const Json& json, int minimum, int maximum, const char* name) {
    if (!json.is_number_integer())
        throw Bad(std::string("\"") + name + "\" is no whole number");
    const bool huge = json.is_number_unsigned() && json.get<std::uint64_t>() > std::uint64_t(maximum);
    const auto value = huge ? std::int64_t(maximum) + 1 : json.get<std::int64_t>();
    if (value < minimum || value > maximum)
        throw Bad(std::string("\"") + name + "\" is out of range");
    return int(value);
}

int whole(const Json& object, const char* name, int minimum, int maximum) {
    return whole(member(object, name), minimum, maximum, name);
}

// A number, or nothing where the plot had none.
double real(const Json& json, const char* name) {
    if (json.is_null())
        return std::numeric_limits<double>::quiet_NaN();
    if (!json.is_number())
        throw Bad(std::string("\"") + name + "\" holds what is no number");
    return json.get<double>();
}

float single(const Json& json, const char* name) {
    const double value = real(json, name);
    if (std::abs(value) > double(std::numeric_limits<float>::max()))
        throw Bad(std::string("\"") + name + "\" holds a number out of range");
    return float(value);
}

// Runs in order, none over another: each mark is drawn once, however often a file names it.
void mergeRuns(std::vector<std::pair<int, int>>& runs) {
    std::sort(runs.begin(), runs.end());
    std::size_t kept = 0;
    for (const auto& run : runs)
        if (kept > 0 && run.first <= runs[kept - 1].second)
            runs[kept - 1].second = std::max(runs[kept - 1].second, run.second);
        else
            runs[kept++] = run;
    runs.resize(kept);
}

PlotSeries seriesOf(const Json& json, int points) {
    expect(json, {"legend", "values", "forced"}, "A series");
    PlotSeries series;
    series.legend = text(json, "legend");
    const Json& values = list(json, "values", std::size_t(points));
    series.values.reserve(values.size());
    for (const Json& value : values)
        series.values.push_back(single(value, "values"));
    for (const Json& run : list(json, "forced", maximumPoints)) {
        if (!run.is_array() || run.size() != 2)
            throw Bad("\"forced\" holds what is no pair");
        const int last = whole(run[1], 0, int(series.values.size()) - 1, "forced");
        series.forced.emplace_back(whole(run[0], 0, last, "forced"), last);
    }
    mergeRuns(series.forced);
    return series;
}

void readAxes(const Json& json, Plot& plot) {
    const Json& x = member(json, "xAxis");
    expect(x, {"points", "labelStep", "labels", "firstEntry", "entriesPerPoint"}, "\"xAxis\"");
    plot.points = whole(x, "points", 0, maximumPoints);
    plot.labelStep = whole(x, "labelStep", 1, maximumPoints);
    plot.firstEntry = whole(x, "firstEntry", 0, maximumPoints);
    plot.entriesPerPoint = whole(x, "entriesPerPoint", 1, 3);
    const Json& labels = list(x, "labels", plot.labels.size());
    if (labels.size() != plot.labels.size())
        throw Bad("\"labels\" are not nine");
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (!labels[i].is_string() || labels[i].get_ref<const std::string&>().size() > 200)
            throw Bad("\"labels\" holds what is no label");
        plot.labels[i] = labels[i].get<std::string>();
    }
    const Json& y = member(json, "yAxis");
    expect(y, {"title", "minimum", "maximum"}, "\"yAxis\"");
    plot.yTitle = text(y, "title");
    plot.yMin = real(member(y, "minimum"), "minimum");
    plot.yMax = real(member(y, "maximum"), "maximum");
}

ChartNote noteOf(const Json& json) {
    expect(json, {"x", "y", "text"}, "A note");
    ChartNote note{real(member(json, "x"), "x"), real(member(json, "y"), "y"), text(json, "text")};
    if (!(note.x >= 0 && note.x <= 1 && note.y >= 0 && note.y <= 1))
        throw Bad("A note stands outside the chart");
    return note;
}

Contents contentsOf(const Json& json) {
    if (!json.is_object() || json.value("format", Json()) != format)
        throw Bad("It is no chart file of this program");
    if (whole(json, "version", 0, std::numeric_limits<int>::max()) != version)
        throw Bad("It was written by a newer version of this program");
    expect(json, {"format", "version", "displaying", "title", "remark", "xAxis", "yAxis", "series", "notes"},
           "The chart");
    Contents contents;
    Plot& plot = contents.plot;
    plot.displaying = text(json, "displaying");
    plot.title = text(json, "title");
    plot.remark = text(json, "remark");
    readAxes(json, plot);
    for (const Json& series : list(json, "series", maximumSeries))
        plot.series.push_back(seriesOf(series, plot.points));
    for (const Json& note : list(json, "notes", maximumNotes))
        contents.notes.push_back(noteOf(note));
    return contents;
}

// Stops at what no chart file holds before it fills the memory.
Json parse(const std::string& bytes) {
    std::size_t items = 0;
    const auto watch = [&items](int depth, Json::parse_event_t, Json&) {
        if (depth > maximumDepth || ++items > maximumItems)
            throw Bad("It is no chart file of this program");
        return true;
    };
    return Json::parse(bytes, watch);
}

Json seriesJson(const PlotSeries& series) {
    Json values = Json::array();
    for (const float value : series.values)
        values.push_back(number(value));
    Json forced = Json::array();
    for (const auto& [first, last] : series.forced)
        forced.push_back({first, last});
    return {{"legend", series.legend}, {"values", std::move(values)}, {"forced", std::move(forced)}};
}

} // namespace

std::string write(const Plot& plot, const std::vector<ChartNote>& notes) {
    Json json = {{"format", format},
                 {"version", version},
                 {"title", plot.title},
                 {"displaying", plot.displaying},
                 {"remark", plot.remark}};
    json["xAxis"] = {{"points", plot.points},
                     {"labelStep", plot.labelStep},
                     {"labels", plot.labels},
                     {"firstEntry", plot.firstEntry},
                     {"entriesPerPoint", plot.entriesPerPoint}};
    json["yAxis"] = {{"title", plot.yTitle}, {"minimum", number(plot.yMin)}, {"maximum", number(plot.yMax)}};
    json["series"] = Json::array();
    for (const PlotSeries& series : plot.series)
        json["series"].push_back(seriesJson(series));
    json["notes"] = Json::array();
    for (const ChartNote& note : notes)
        json["notes"].push_back({{"x", note.x}, {"y", note.y}, {"text", note.text}});
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

Result read(const std::string& bytes) {
    if (bytes.size() > maximumBytes)
        return {{}, "The chart file cannot be read: it is too large"};
    try {
        return {contentsOf(parse(bytes)), {}};
    } catch (const Bad& bad) {
        return {{}, std::string("The chart file cannot be read: ") + bad.what()};
    } catch (const Json::exception&) {
        return {{}, "The chart file cannot be read: it is damaged or no chart file"};
    }
}

} // namespace tally::ChartFile
