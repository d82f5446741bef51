// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

namespace tally {
namespace {

using ::testing::Contains;
using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::WindowTest;

std::vector<int> constant(int count, int tenths) {
    return std::vector<int>(std::size_t(count), tenths);
}

TEST_F(WindowTest, PowerPlotAsksForTheVoltageOfferingTheDefault) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back("4160");
    click("mnuItemViewPower");
    EXPECT_EQ(prompt.asked.back().preset, "13800");
    EXPECT_THAT(prompt.asked.back().text, HasSubstr("Enter line voltage for power calculation"));
    EXPECT_THAT(prompt.asked.back().text, HasSubstr("input must be volts, not 'KV'"));
    EXPECT_EQ(settings.get("Settings", "Vline"), "4160");
    EXPECT_EQ(display.viewKind, ViewKind::powerPlot);
    // 100 A at 4.16 kV.
    EXPECT_FLOAT_EQ(display.power.at(0), 416.0F);
    for (const char* name : {"mnuItemViewPwrTable", "mnuItemPrintPwrTable"})
        EXPECT_TRUE(enabled(name)) << name;
}

TEST_F(WindowTest, CancelledVoltageDrawsNothing) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemViewPower");
    EXPECT_EQ(window.screen().page(), Screen::Page::text);
    EXPECT_FALSE(display.powerDrawn);
    EXPECT_EQ(settings.get("Settings", "Vline"), "13800");
    prompt.inputs.push_back("");
    click("mnuItemViewPower");
    EXPECT_FALSE(display.powerDrawn);
}

TEST_F(WindowTest, VoltagesEnteredAreOfferedAgainAfterClose) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    for (const char* volts : {"4160", "13800", "4160"}) {
        prompt.inputs.push_back(volts);
        click("mnuItemViewPower");
    }
    click("mnuItemClose");
    EXPECT_EQ(settings.get("Settings", "Vline"), "0");
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemViewPower");
    EXPECT_EQ(prompt.asked.back().preset, "0");
    EXPECT_THAT(prompt.asked.back().choices, ElementsAre("4160", "13800"));
}

TEST_F(WindowTest, KilovoltsGetAHintButAreTaken) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back("13.8");
    click("mnuItemViewPower");
    EXPECT_TRUE(display.powerDrawn);
    EXPECT_FALSE(remark().isEmpty());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(WindowTest, MinMaxAvgFilesAreRefusedAndTurnThePowerPlotOff) {
    open("/d/g.dat", dataFile('g', constant(9, 1000)));
    prompt.inputs.push_back("13800");
    click("mnuItemViewPower");
    EXPECT_THAT(prompt.texts(), ElementsAre("Files must be average mode for power to plot"));
    EXPECT_FALSE(enabled("mnuItemViewPower"));
    EXPECT_EQ(window.screen().page(), Screen::Page::text);
    EXPECT_FALSE(display.powerView);
}

TEST_F(WindowTest, OverflowOfThreeFilesRestoresTheDisplay) {
    for (const char* path : {"/d/a.dat", "/d/b.dat", "/d/c.dat"})
        open(path, dataFile('a', constant(8, 9990)));
    files.contents["/d/c.dat"] = dataFile('a', constant(8, 9990));
    for (auto& readings : recordings.gReadings)
        readings.assign(8, 20000);
    click("mnuItemViewPlot");
    mark(2, 3);
    const auto before = window.screen().chart().plot().title;
    prompt.inputs.push_back("13800");
    click("mnuItemViewPower");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 6: Overflow"));
    EXPECT_FALSE(display.powerView);
    EXPECT_EQ(display.viewKind, ViewKind::dataPlot);
    EXPECT_EQ(window.screen().chart().plot().title, before);
    click("mnuZoom");
    EXPECT_EQ(recordings.gDatastart, 2);
}

TEST_F(WindowTest, PowerTableDrawsThePowerPlotFirstWhenThereIsNone) {
    open("/d/a.dat", dataFile('a', constant(8, 1000), 'X', true));
    click("mnuItemViewPlot");
    prompt.inputs.push_back("13800");
    click("mnuItemViewpwrsummry");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("Line Voltage: 13800"));
    EXPECT_EQ(display.viewKind, ViewKind::powerSummary);
    click("mnuItemViewPwrTable");
    EXPECT_EQ(prompt.asked.size(), 1U);
    // 100 A at 13.8 kV.
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("1380.0"));
    EXPECT_EQ(display.viewKind, ViewKind::table);
    EXPECT_EQ(remark().toStdString(), display.powerSource);
}

TEST_F(WindowTest, PowerFactorAboveOneIsTakenAsEntered) {
    prompt.inputs.push_back("1.2");
    click("mnuItemPF");
    EXPECT_EQ(prompt.asked.back().text, "Enter Power Factor to be used \rmust be 1 or less");
    EXPECT_EQ(prompt.asked.back().preset, "1");
    EXPECT_FLOAT_EQ(recordings.powerFactor, 1.2F);
}

TEST_F(WindowTest, CancelledOrEmptyPowerFactorKeepsTheOldOne) {
    recordings.powerFactor = 0.9F;
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemPF");
    prompt.inputs.push_back("");
    click("mnuItemPF");
    EXPECT_FLOAT_EQ(recordings.powerFactor, 0.9F);
}

TEST_F(WindowTest, PowerFactorOfZeroIsOfferedAsOne) {
    recordings.powerFactor = 0;
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemPF");
    EXPECT_EQ(prompt.asked.back().preset, "1");
    EXPECT_FLOAT_EQ(recordings.powerFactor, 1.0F);
}

} // namespace
} // namespace tally
