// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartFile.h"

#include "ChartSupport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <limits>

namespace tally {
namespace {

using ::testing::HasSubstr;
using Json = nlohmann::json;

Plot fullPlot() {
    Plot plot = testing::samplePlot(100, 3);
    plot.series[1].forced = {{3, 9}, {99, 99}};
    plot.series[2].values[5] = 2390.16F;
    plot.series[2].values[6] = -0.1F;
    plot.firstEntry = 300;
    plot.entriesPerPoint = 3;
    plot.yMin = -4;
    plot.yMax = 123.45678901234;
    plot.remark = "FILE2.DAT is shorter";
    plot.title += "\r\nOther:      \xC3\x84rger \"quoted\"";
    return plot;
}

void expectSame(const Plot& read, const Plot& saved) {
    EXPECT_EQ(read.title, saved.title);
    EXPECT_EQ(read.yTitle, saved.yTitle);
    EXPECT_EQ(read.yMin, saved.yMin);
    EXPECT_EQ(read.yMax, saved.yMax);
    EXPECT_EQ(read.points, saved.points);
    EXPECT_EQ(read.labels, saved.labels);
    EXPECT_EQ(read.labelStep, saved.labelStep);
    EXPECT_EQ(read.firstEntry, saved.firstEntry);
    EXPECT_EQ(read.entriesPerPoint, saved.entriesPerPoint);
    EXPECT_EQ(read.displaying, saved.displaying);
    EXPECT_EQ(read.remark, saved.remark);
    ASSERT_EQ(read.series.size(), saved.series.size());
    for (std::size_t i = 0; i < read.series.size(); ++i) {
        EXPECT_EQ(read.series[i].legend, saved.series[i].legend);
        EXPECT_EQ(read.series[i].values, saved.series[i].values);
        EXPECT_EQ(read.series[i].forced, saved.series[i].forced);
    }
}

TEST(ChartFileTest, WhatWasSavedComesBackExactly) {
    const std::vector<ChartNote> notes{{0.25, 0.75, "Storm\non the line"}, {0, 1, "\xE2\x9A\xA1"}};
    const auto result = ChartFile::read(ChartFile::write(fullPlot(), notes));
    ASSERT_TRUE(result.contents) << result.why;
    expectSame(result.contents->plot, fullPlot());
    EXPECT_EQ(result.contents->notes, notes);
}

TEST(ChartFileTest, OverlappingMarksBecomeOne) {
    Plot plot = testing::samplePlot(100);
    plot.series[0].forced = {{40, 60}, {3, 9}, {50, 55}, {5, 12}, {13, 20}, {60, 70}};
    const auto result = ChartFile::read(ChartFile::write(plot, {}));
    ASSERT_TRUE(result.contents) << result.why;
    EXPECT_EQ(result.contents->plot.series[0].forced,
              (std::vector<std::pair<int, int>>{{3, 12}, {13, 20}, {40, 70}}));
}

TEST(ChartFileTest, AsManyOverlappingMarksAsThereArePointsAreDrawnOnce) {
    Plot plot = testing::samplePlot(42966);
    plot.series[0].forced.assign(42966, {0, 42965});
    const auto result = ChartFile::read(ChartFile::write(plot, {}));
    ASSERT_TRUE(result.contents) << result.why;
    EXPECT_EQ(result.contents->plot.series[0].forced, (std::vector<std::pair<int, int>>{{0, 42965}}));
}

TEST(ChartFileTest, TheLongestPlotComesBackAndFitsTheLimit) {
    Plot plot = testing::samplePlot(42966, 3);
    for (PlotSeries& series : plot.series)
        for (std::size_t k = 0; k < series.values.size(); ++k)
            series.values[k] = -1.2345678e-20F * float(k + 1); // as many digits as a single can have
    const std::string bytes = ChartFile::write(plot, {});
    EXPECT_LT(bytes.size(), ChartFile::maximumBytes);
    const auto result = ChartFile::read(bytes);
    ASSERT_TRUE(result.contents) << result.why;
    expectSame(result.contents->plot, plot);
}

TEST(ChartFileTest, ReadingsAreWrittenAsPlainNumbers) {
    Plot plot = testing::samplePlot(1);
    plot.series[0].values = {12.3F};
    EXPECT_THAT(ChartFile::write(plot, {}), HasSubstr("[12.3]"));
}

TEST(ChartFileTest, AValueThatIsNoNumberComesBackAsNone) {
    Plot plot = testing::samplePlot(2);
    plot.series[0].values = {std::numeric_limits<float>::infinity(), 1.5F};
    const auto result = ChartFile::read(ChartFile::write(plot, {}));
    ASSERT_TRUE(result.contents) << result.why;
    EXPECT_TRUE(std::isnan(result.contents->plot.series[0].values[0]));
    EXPECT_EQ(result.contents->plot.series[0].values[1], 1.5F);
}

TEST(ChartFileTest, BadCharactersInATextDoNotStopTheSave) {
    Plot plot = testing::samplePlot(2);
    plot.title = "Caf\xE9";
    EXPECT_TRUE(ChartFile::read(ChartFile::write(plot, {})).contents);
}

// Each row damages a good file in one place.
struct Damage {
    const char* name;
    void (*harm)(Json& json);
};

class ChartFileDamage : public ::testing::TestWithParam<Damage> {};

TEST_P(ChartFileDamage, IsRefusedWithAMessage) {
    Json json = Json::parse(ChartFile::write(fullPlot(), {{0.5, 0.5, "note"}}));
    GetParam().harm(json);
    const auto result = ChartFile::read(json.dump());
    EXPECT_FALSE(result.contents);
    EXPECT_THAT(result.why, ::testing::StartsWith("The chart file cannot be read: "));
}

INSTANTIATE_TEST_SUITE_P(
    All, ChartFileDamage,
    ::testing::Values(
        Damage{"OtherFormat", [](Json& j) { j["format"] = "other-chart"; }},
        Damage{"NoFormat", [](Json& j) { j.erase("format"); }},
        Damage{"NewerVersion", [](Json& j) { j["version"] = 2; }},
        Damage{"VersionNoNumber", [](Json& j) { j["version"] = "1"; }},
        Damage{"UnknownMember", [](Json& j) { j["extra"] = 1; }},
        Damage{"NoTitle", [](Json& j) { j.erase("title"); }},
        Damage{"TitleNoText", [](Json& j) { j["title"] = 5; }},
        Damage{"TitleTooLong", [](Json& j) { j["title"] = std::string(70000, 'x'); }},
        Damage{"SeriesNoList", [](Json& j) { j["series"] = Json::object(); }},
        Damage{"TooManySeries", [](Json& j) { j["series"] = Json(std::vector<Json>(13, j["series"][0])); }},
        Damage{"SeriesNoObject", [](Json& j) { j["series"][0] = 7; }},
        Damage{"MoreValuesThanPoints", [](Json& j) { j["series"][0]["values"].push_back(1); }},
        Damage{"ValueAText", [](Json& j) { j["series"][0]["values"][3] = "12"; }},
        Damage{"ValueTooLarge", [](Json& j) { j["series"][0]["values"][3] = 1e39; }},
        Damage{"ForcedOutside",
               [](Json& j) {
                   j["series"][0]["forced"] = {{5, 100}};
               }},
        Damage{"ForcedTurnedRound",
               [](Json& j) {
                   j["series"][0]["forced"] = {{9, 5}};
               }},
        Damage{"ForcedNoPair",
               [](Json& j) {
                   j["series"][0]["forced"] = {{1, 2, 3}};
               }},
        Damage{"PointsNegative", [](Json& j) { j["xAxis"]["points"] = -1; }},
        Damage{"PointsTooMany", [](Json& j) { j["xAxis"]["points"] = 42968; }},
        Damage{"PointsHuge", [](Json& j) { j["xAxis"]["points"] = 18446744073709551615ULL; }},
        Damage{"PointsAFraction", [](Json& j) { j["xAxis"]["points"] = 5.5; }},
        Damage{"StepNull", [](Json& j) { j["xAxis"]["labelStep"] = 0; }},
        Damage{"EightLabels", [](Json& j) { j["xAxis"]["labels"].erase(0); }},
        Damage{"LabelNoText", [](Json& j) { j["xAxis"]["labels"][2] = Json::array(); }},
        Damage{"FourEntriesPerPoint", [](Json& j) { j["xAxis"]["entriesPerPoint"] = 4; }},
        Damage{"MinimumAText", [](Json& j) { j["yAxis"]["minimum"] = "0"; }},
        Damage{"NoteOutside", [](Json& j) { j["notes"][0]["x"] = 1.01; }},
        Damage{"NoteNowhere", [](Json& j) { j["notes"][0]["y"] = nullptr; }},
        Damage{"NoteWithoutText", [](Json& j) { j["notes"][0].erase("text"); }},
        Damage{"TooManyNotes", [](Json& j) { j["notes"] = Json(std::vector<Json>(1001, j["notes"][0])); }}),
    [](const auto& row) { return row.param.name; });

void expectRefused(const std::string& bytes) {
    const auto begun = std::chrono::steady_clock::now();
    const auto result = ChartFile::read(bytes);
    const auto taken = std::chrono::steady_clock::now() - begun;
    EXPECT_FALSE(result.contents);
    EXPECT_FALSE(result.why.empty());
    EXPECT_LT(taken, std::chrono::seconds(5));
}

TEST(ChartFileTest, ForeignBytesAreRefused) {
    expectRefused("");
    expectRefused("GIF89a");
    expectRefused("[]");
    expectRefused("null");
    expectRefused(std::string(1000, '\0'));
    expectRefused("\xFF\xFE{");
    expectRefused("{\"format\":\"tallyline-chart\"");
}

TEST(ChartFileTest, AFileCutAnywhereIsRefused) {
    const std::string bytes = ChartFile::write(testing::samplePlot(5, 2), {{0.1, 0.1, "note"}});
    for (std::size_t length = 0; length + 2 < bytes.size(); ++length)
        EXPECT_FALSE(ChartFile::read(bytes.substr(0, length)).contents) << length;
}

TEST(ChartFileTest, AHugeFileIsRefusedUnread) {
    expectRefused(std::string(ChartFile::maximumBytes + 1, ' '));
}

TEST(ChartFileTest, DeepAndWideNestingIsRefusedBeforeItFillsTheMemory) {
    expectRefused(std::string(ChartFile::maximumBytes - 1, '['));
    std::string wide = "[0";
    while (wide.size() < ChartFile::maximumBytes - 4)
        wide += ",0";
    expectRefused(wide + "]");
    expectRefused("{\"format\":" + wide + "]}");
}

} // namespace
} // namespace tally
