// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/forms/ForceRdgs.h"

#include <QLineEdit>

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

class PowerCommands : public WindowTest {};

TEST_F(PowerCommands, PowerPlotAsksForTheVoltageOfferingTheDefault) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back("4160");
    click("mnuItemViewPower");
    EXPECT_EQ(prompt.asked.back().preset, "13800");
    EXPECT_THAT(prompt.asked.back().text, HasSubstr("Enter line voltage for power calculation"));
    EXPECT_THAT(prompt.asked.back().text, HasSubstr("input must be volts, not 'KV'"));
    EXPECT_EQ(settings.get("Settings", "Vline"), "4160");
    EXPECT_EQ(display.view(), View::powerPlot);
    // 100 A at 4.16 kV.
    EXPECT_FLOAT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 416.0F);
    for (const char* name : {"mnuItemViewPwrTable", "mnuItemPrintPwrTable"})
        EXPECT_TRUE(enabled(name)) << name;
}

TEST_F(PowerCommands, CancelledVoltageDrawsNothing) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemViewPower");
    EXPECT_EQ(window.screen().page(), Screen::Page::text);
    EXPECT_FALSE(display.powerKnown());
    EXPECT_EQ(settings.get("Settings", "Vline"), "13800");
    prompt.inputs.push_back("");
    click("mnuItemViewPower");
    EXPECT_FALSE(display.powerKnown());
}

TEST_F(PowerCommands, VoltagesEnteredAreOfferedAgainAfterClose) {
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
    EXPECT_EQ(prompt.asked.back().preset, "13800") << "0 counts as none";
    EXPECT_THAT(prompt.asked.back().choices, ElementsAre("4160", "13800"));
}

TEST_F(PowerCommands, VoltageWithAGroupingCommaIsOfferedAgainAsThatManyVolts) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs = {"13,800", "13,800"};
    click("mnuItemViewPower");
    click("mnuItemViewPower");
    EXPECT_THAT(prompt.asked.back().choices, ElementsAre("13800"));
}

TEST_F(PowerCommands, KilovoltsGetAHintButAreTaken) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back("13.8");
    click("mnuItemViewPower");
    EXPECT_TRUE(display.powerKnown());
    EXPECT_FALSE(remark().isEmpty());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(PowerCommands, MinMaxAvgFilesAreRefusedAndTurnThePowerPlotOff) {
    open("/d/g.dat", dataFile('g', constant(9, 1000)));
    prompt.inputs.push_back("13800");
    click("mnuItemViewPower");
    EXPECT_THAT(prompt.texts(), ElementsAre("Files must be average mode for power to plot"));
    EXPECT_FALSE(enabled("mnuItemViewPower"));
    EXPECT_EQ(window.screen().page(), Screen::Page::text);
    EXPECT_FALSE(display.powerView());
}

TEST_F(PowerCommands, OverflowOfThreeFilesRestoresTheDisplay) {
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
    EXPECT_FALSE(display.powerView());
    EXPECT_EQ(display.view(), View::dataPlot);
    EXPECT_EQ(window.screen().chart().plot().title, before);
    click("mnuZoom");
    EXPECT_EQ(display.gDatastart(), 2);
}

// Hundred amperes at 1e40 volts are more kilowatts than single precision holds.
TEST_F(PowerCommands, APowerTableOfTheVoltageBeforeSaysItsVoltageWhenTheNewOneOverflows) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs.push_back("13800");
    click("mnuItemViewPower");
    click("mnuItemViewPwrTable");
    prompt.inputs.push_back("1e40");
    click("mnuItemViewPower");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 6: Overflow"));
    EXPECT_EQ(display.view(), View::powerTable);
    EXPECT_THAT(remark().toStdString(), ::testing::StartsWith("Power of a.dat at 13.8 KV"));
    prompt.inputs.push_back("4160");
    click("mnuItemViewPower");
    EXPECT_THAT(remark().toStdString(), ::testing::StartsWith("Power of a.dat at 4.16 KV"));
}

TEST_F(PowerCommands, PowerSummaryAsksForTheVoltageOnceAndPowerTableNoMore) {
    open("/d/a.dat", dataFile('a', constant(8, 1000), 'X', true));
    click("mnuItemViewPlot");
    prompt.inputs.push_back("13800");
    click("mnuItemViewpwrsummry");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("Line Voltage: 13800"));
    EXPECT_EQ(display.view(), View::powerSummary);
    click("mnuItemViewPwrTable");
    EXPECT_EQ(prompt.asked.size(), 1U);
    // 100 A at 13.8 kV.
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("1380.0"));
    EXPECT_EQ(display.view(), View::powerTable);
    EXPECT_THAT(remark().toStdString(), ::testing::StartsWith("Power of a.dat at 13.8 KV, power factor 1, "));
}

TEST_F(PowerCommands, PowerFactorAboveOneIsTakenAsEntered) {
    prompt.inputs.push_back("1.2");
    click("mnuItemPF");
    EXPECT_EQ(prompt.asked.back().text, "Enter Power Factor to be used \rmust be 1 or less");
    EXPECT_EQ(prompt.asked.back().preset, "1");
    EXPECT_FLOAT_EQ(display.powerFactor(), 1.2F);
}

TEST_F(PowerCommands, CancelledOrEmptyPowerFactorKeepsTheOldOne) {
    display.setPowerFactor(0.9F);
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemPF");
    prompt.inputs.push_back("");
    click("mnuItemPF");
    EXPECT_FLOAT_EQ(display.powerFactor(), 0.9F);
}

TEST_F(PowerCommands, PowerFactorOfZeroIsOfferedAsOne) {
    prompt.inputs = {"0", std::nullopt};
    click("mnuItemPF");
    EXPECT_EQ(remark(), QStringLiteral("Power factor taken as 1."));
    click("mnuItemPF");
    EXPECT_EQ(prompt.asked.back().preset, "1");
    EXPECT_FLOAT_EQ(display.powerFactor(), 1.0F);
}

TEST_F(PowerCommands, AnotherPowerFactorRedrawsWhatComesFromIt) {
    open("/d/a.dat", dataFile('a', constant(8, 1000), 'X', true));
    prompt.inputs = {"10000", "0.5", "0.8"};
    click("mnuItemViewPower");
    click("mnuItemPF");
    EXPECT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 500.0F);
    click("mnuItemViewPwrTable");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("  500.0  "));
    click("mnuItemPF");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("  800.0  "));
}

TEST_F(PowerCommands, PowerFactorThatIsNotWhollyANumberIsTold) {
    prompt.inputs.push_back("0,8");
    click("mnuItemPF");
    EXPECT_EQ(remark(), QStringLiteral("Power factor taken as 1."));
}

TEST_F(PowerCommands, VoltageWithAGroupingCommaIsThatManyVolts) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs = {"13,800"};
    click("mnuItemViewPower");
    EXPECT_FLOAT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 1380.0F);
}

TEST_F(PowerCommands, VoltageThatIsNotWhollyANumberIsToldWithTheValueThatIsUsed) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    const QString told =
        QStringLiteral("Line voltage taken as 4160 volts; the entry is not wholly a number.");
    prompt.inputs = {"4160 V", "4160"};
    click("mnuItemViewPower");
    EXPECT_EQ(remark(), told);
    // The next command has words of its own.
    click("mnuItemViewPower");
    EXPECT_THAT(remark().toStdString(), ::testing::StartsWith("Power of a.dat at 4.16 KV"));
}

TEST_F(PowerCommands, VoltageThatThePowerTableAsksForIsToldLikewise) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs = {"4160 V"};
    click("mnuItemViewpwrsummry");
    EXPECT_EQ(remark(),
              QStringLiteral("Line voltage taken as 4160 volts; the entry is not wholly a number."));
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("Line Voltage: 4160"));
}

TEST_F(PowerCommands, WordAboutAnEntryGoesWithTheNextCommand) {
    open("/d/a.dat", dataFile('a', constant(8, 1000)));
    prompt.inputs = {"0,8", "0.8"};
    click("mnuItemPF");
    EXPECT_EQ(remark(), QStringLiteral("Power factor taken as 1."));
    click("mnuItemPF");
    EXPECT_EQ(remark(), QString());
}

TEST_F(PowerCommands, ForcingRenewsThePowerViewOnTheScreen) {
    open("/d/a.dat", dataFile('a', constant(8, 1000), 'X', true));
    prompt.inputs = {"10000"};
    click("mnuItemViewPower");
    const auto force = [this](const char* value) {
        whenOpen<ForceRdgs>([value](ForceRdgs& form) {
            form.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QString::fromLatin1(value));
            form.accept();
        });
        click("mnuItemForceRdg");
    };
    force("50");
    EXPECT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 500.0F);
    click("mnuItemViewpwrsummry");
    force("60");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("Min: 600.0 KW"));
    EXPECT_THAT(window.screen().text().text().toStdString(),
                HasSubstr("Total Energy In Displayed Area: 1,050 KWHR"));
}

TEST_F(PowerCommands, PowerSummaryNamesTheSpanThatWasMarkedInADataPlot) {
    open("/d/a.dat", dataFile('a', constant(40, 1000)));
    prompt.inputs = {"10000"};
    click("mnuItemViewPower");
    click("mnuItemViewPlot");
    mark(10, 13);
    click("mnuZoom");
    click("mnuItemViewpwrsummry");
    const FileFacts& info = recordings.info(0);
    EXPECT_THAT(window.screen().text().text().toStdString(),
                HasSubstr("Selected:       Start  " + screenTime(info.start + 150) +
                          "                Finish  " + screenTime(info.start + 195)));
}

} // namespace
} // namespace tally
