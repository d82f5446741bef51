// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/InstSel.h"

#include "link/forms/InstProperties.h"
#include "link/forms/LinkSupport.h"

#include <QGroupBox>
#include <QRadioButton>

namespace tally {
namespace {

using namespace testing;

InstrumentState chosen(int code) {
    InstrumentState state;
    applySelection(state, code);
    return state;
}

TEST(LinkInstSel, HasTheTypesInTheOrderOfTheirCodes) {
    InstrumentState state;
    const InstSel form(state, false, nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Instrument Selection"));
    const char* const captions[] = {"HVN40/80",
                                    "HVN500/550",
                                    "HVT550",
                                    "PQV",
                                    "PQV-D",
                                    "TZ300",
                                    "PQX-K4",
                                    "PQX-K4-W",
                                    "Custom",
                                    "PQX (the original model)",
                                    "PQX-K4 Auto Select",
                                    "None of the above"};
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(form.findChild<QRadioButton*>(QStringLiteral("Option%1").arg(i + 1))->text(),
                  QString::fromLatin1(captions[i]));
}

TEST(LinkInstSel, SaysWhatToDo) {
    InstrumentState state;
    EXPECT_EQ(labelText(InstSel(state, false, nullptr), "Label1"),
              "Please select the instrument you're using and then Press OK.");
    EXPECT_EQ(labelText(InstSel(state, true, nullptr), "Label1"), "Must first select an instrument type:");
}

TEST(LinkInstSel, OkAndPropertiesWaitForAClickOnAType) {
    for (int code = 1; code <= 11; ++code) {
        InstrumentState state = chosen(7);
        const InstSel form(state, false, nullptr);
        EXPECT_FALSE(named(form, "OK")->isEnabled());
        EXPECT_FALSE(named(form, "Properties")->isEnabled());
        click(form, "Option12");
        EXPECT_FALSE(named(form, "OK")->isEnabled());
        click(form, ("Option" + std::to_string(code)).c_str());
        EXPECT_TRUE(named(form, "OK")->isEnabled());
        EXPECT_TRUE(named(form, "Properties")->isEnabled());
    }
}

TEST(LinkInstSel, ExitIsHiddenAndDisabled) {
    InstrumentState state;
    InstSel form(state, true, nullptr);
    form.show();
    EXPECT_FALSE(named(form, "ExitButton")->isVisible());
    EXPECT_FALSE(named(form, "ExitButton")->isEnabled());
    EXPECT_TRUE(named(form, "CancelButton")->isVisible());
    EXPECT_TRUE(named(form, "CancelButton")->isEnabled());
}

TEST(LinkInstSel, OkTakesTheCheckedTypeIntoForce) {
    InstrumentState state;
    soon([] {
        QDialog* form = shownDialog("InstSel");
        click(*form, "Option8");
        click(*form, "OK");
    });
    EXPECT_TRUE(runInstSel(nullptr, state));
    EXPECT_EQ(state.instSelection, 8);
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    EXPECT_EQ(state.maxSamples, 42966);
}

TEST(LinkInstSel, NoneOfTheAboveKeepsTheType) {
    InstrumentState state = chosen(5);
    InstSel form(state, false, nullptr);
    click(form, "Option1");
    click(form, "Option12");
    click(form, "OK");
    EXPECT_EQ(state.instSelection, 5);
}

TEST(LinkInstSel, CancelAfterPropertiesRestoresWhatWasBefore) {
    InstrumentState state = chosen(1);
    InstSel form(state, false, nullptr);
    click(form, "Option8");
    soon([] { click(*shownDialog("InstProperties"), "CancelButton"); });
    click(form, "Properties");
    EXPECT_EQ(state.instSelection, 8); // applied for the properties
    click(form, "CancelButton");
    EXPECT_EQ(state.instSelection, 1);
    EXPECT_EQ(state.portSettings, "9600,N,8,1");
    EXPECT_EQ(state.maxSamples, 2091);
}

TEST(LinkInstSel, EscapeIsCancel) {
    InstrumentState state = chosen(1);
    soon([] {
        QDialog* form = shownDialog("InstSel");
        click(*form, "Option8");
        QTest::keyClick(form, Qt::Key_Escape);
    });
    EXPECT_FALSE(runInstSel(nullptr, state));
    EXPECT_EQ(state.instSelection, 1);
}

TEST(LinkInstSel, ShowsTheSettingsOfAFixedTypeWithOkDisabled) {
    InstrumentState state = chosen(7);
    const InstProperties form(state, nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Instrument Properties"));
    EXPECT_EQ(named<QGroupBox>(form, "Frame1")->title(), QStringLiteral("Baud Rate"));
    EXPECT_EQ(named<QGroupBox>(form, "Frame2")->title(), QStringLiteral("Maximum Samples"));
    EXPECT_TRUE(named(form, "Option1")->isChecked());
    EXPECT_EQ(named(form, "Option1")->text(), QStringLiteral("9,600"));
    EXPECT_EQ(named(form, "Option2")->text(), QStringLiteral("115,200"));
    EXPECT_TRUE(named(form, "Option5")->isChecked());
    EXPECT_EQ(named(form, "Option5")->text(), QStringLiteral("10,710  (128 kbit eeprom)"));
    EXPECT_FALSE(named(form, "OK")->isEnabled());
}

TEST(LinkInstSel, ChecksTheSizeInForce) {
    const std::pair<int, const char*> sizes[] = {
        {42966, "Option3"}, {21462, "Option4"}, {10710, "Option5"}, {294, "Option6"}, {2091, "Option7"}};
    const char* const captions[] = {"42,966  (512 kbit eeprom)", "21,462  (256 kbit eeprom)",
                                    "10,710  (128 kbit eeprom)", "     294  (Special Test)",
                                    "  2,091  (Original PQX)"};
    int i = 0;
    for (const auto& [samples, option] : sizes) {
        InstrumentState state = chosen(9);
        state.maxSamples = samples;
        const InstProperties form(state, nullptr);
        EXPECT_TRUE(named(form, option)->isChecked()) << samples;
        EXPECT_EQ(named(form, option)->text(), QString::fromLatin1(captions[i++]));
        EXPECT_TRUE(named(form, "OK")->isEnabled());
    }
}

TEST(LinkInstSel, OkSetsTheCustomValuesAndTakesThemIntoForce) {
    InstrumentState state = chosen(9);
    InstProperties form(state, nullptr);
    click(form, "Option2");
    click(form, "Option6");
    click(form, "OK");
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    EXPECT_EQ(state.portSettingsCustom, "115200,N,8,1");
    EXPECT_EQ(state.maxSamples, 294);
    EXPECT_EQ(state.maxSamplesCustom, 294);
    EXPECT_FALSE(form.isVisible());
}

TEST(LinkInstSel, CancelChangesNothing) {
    InstrumentState state = chosen(9);
    InstProperties form(state, nullptr);
    click(form, "Option2");
    click(form, "CancelButton");
    EXPECT_EQ(state.portSettings, "9600,N,8,1");
    EXPECT_EQ(state.portSettingsCustom, "9600,N,8,1");
}

} // namespace
} // namespace tally
