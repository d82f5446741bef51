// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Instruments.h"

#include "core/Fault.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

InstrumentState chosen(int code, InstrumentState state = {}) {
    applySelection(state, code);
    return state;
}

TEST(Instruments, IsTheDisplayNameOfEachCode) {
    const std::vector<std::string> names = {"(no instrument selected)",
                                            "HVN40/80",
                                            "",
                                            "HVT550",
                                            "PQV",
                                            "PQV-D",
                                            "TZ300",
                                            "PQX-K4",
                                            "PQX-K4-W",
                                            "Custom",
                                            "PQX",
                                            "PQX-K4-AutoDetect"};
    for (std::size_t code = 0; code < names.size(); ++code)
        EXPECT_EQ(InstrumentName(static_cast<int>(code)), names[code]) << code;
}

TEST(Instruments, IsEmptyOutsideTheTable) {
    EXPECT_EQ(InstrumentName(12), "");
    EXPECT_EQ(InstrumentName(-2), "");
}

TEST(Instruments, CodeMinusOneDividesByZero) {
    try {
        InstrumentName(-1);
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.number(), 11);
    }
}

TEST(Instruments, EachTypeBringsItsSettingsSamplesAndCableOrder) {
    struct Row {
        int code;
        const char* settings;
        int samples;
        bool cableFirst;
    };
    for (const Row& row : {Row{1, "9600,N,8,1", 2091, false}, Row{2, "9600,N,8,1", 10710, false},
                           Row{3, "9600,N,8,1", 10710, false}, Row{4, "9600,N,8,1", 10710, false},
                           Row{5, "9600,N,8,1", 10710, false}, Row{6, "9600,N,8,1", 10710, false},
                           Row{7, "9600,N,8,1", 10710, true}, Row{8, "115200,N,8,1", 42966, true},
                           Row{10, "9600,N,8,1", 2091, false}}) {
        InstrumentState before;
        before.gCableFirst = !row.cableFirst;
        const InstrumentState state = chosen(row.code, before);
        EXPECT_EQ(state.instSelection, row.code);
        EXPECT_EQ(state.portSettings, row.settings) << row.code;
        EXPECT_EQ(state.maxSamples, row.samples) << row.code;
        EXPECT_EQ(state.gCableFirst, row.cableFirst) << row.code;
    }
}

TEST(Instruments, TypeTwoHasSettingsButNoDisplayName) {
    const InstrumentState state = chosen(2);
    EXPECT_EQ(state.portSettings, "9600,N,8,1");
    EXPECT_EQ(state.maxSamples, 10710);
    EXPECT_EQ(InstrumentName(state.instSelection), "");
}

TEST(Instruments, CustomTakesItsOwnValues) {
    InstrumentState before;
    before.portSettingsCustom = "115200,N,8,1";
    before.maxSamplesCustom = 294;
    const InstrumentState state = chosen(9, before);
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    EXPECT_EQ(state.maxSamples, 294);
    EXPECT_TRUE(state.gCableFirst);
}

TEST(Instruments, AutomaticSelectionStartsWithTheSettingsThatWorkedLast) {
    InstrumentState before;
    before.instAutoCurrent = 7;
    EXPECT_EQ(chosen(11, before).portSettings, "9600,N,8,1");
    EXPECT_EQ(chosen(11, before).maxSamples, 10710);
    before.instAutoCurrent = 8;
    EXPECT_EQ(chosen(11, before).portSettings, "115200,N,8,1");
    EXPECT_EQ(chosen(11, before).maxSamples, 42966);
    before.instAutoCurrent = 0; // not set yet
    EXPECT_EQ(chosen(11, before).portSettings, "115200,N,8,1");
    EXPECT_TRUE(chosen(11, before).gCableFirst);
}

TEST(Instruments, NoTypeLeavesTheSettingsAlone) {
    InstrumentState before = chosen(8);
    const InstrumentState state = chosen(0, before);
    EXPECT_EQ(state.instSelection, 0);
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    EXPECT_EQ(state.maxSamples, 42966);
    EXPECT_TRUE(state.gCableFirst);
}

TEST(Instruments, CodesOutsideTheTableAreFaultsAndChangeNothing) {
    InstrumentState state = chosen(8);
    EXPECT_THROW(applySelection(state, 12), Fault);
    EXPECT_THROW(applySelection(state, -1), Fault);
    EXPECT_EQ(state.instSelection, 8);
}

TEST(Instruments, BeforeAnyChoiceTheCableGoesFirst) {
    const InstrumentState state;
    EXPECT_EQ(state.instSelection, 0);
    EXPECT_TRUE(state.gCableFirst);
    EXPECT_EQ(state.instAutoCurrent, 7);
}

TEST(Instruments, CancelPutsBackWhatWasInForceBefore) {
    InstrumentState state = chosen(1);
    TypeChoice choice(state);
    choice.apply(8);
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    choice.cancel();
    EXPECT_EQ(state.instSelection, 1);
    EXPECT_EQ(state.portSettings, "9600,N,8,1");
    EXPECT_EQ(state.maxSamples, 2091);
    EXPECT_FALSE(state.gCableFirst);
}

TEST(Instruments, NoneOfTheTypesKeepsTheCode) {
    InstrumentState state = chosen(8);
    TypeChoice(state).apply({});
    EXPECT_EQ(state.instSelection, 8);
    EXPECT_EQ(state.maxSamples, 42966);
}

TEST(Instruments, CustomTakesThemIntoForceAndKeepsThem) {
    InstrumentState state = chosen(9);
    EXPECT_TRUE(hasOwnProperties(state));
    setProperties(state, "115200,N,8,1", 21462);
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    EXPECT_EQ(state.maxSamples, 21462);
    applySelection(state, 1);
    applySelection(state, 9);
    EXPECT_EQ(state.portSettings, "115200,N,8,1");
    EXPECT_EQ(state.maxSamples, 21462);
}

TEST(Instruments, ThoseOfAFixedTypeCannotBeChanged) {
    InstrumentState state = chosen(7);
    EXPECT_FALSE(hasOwnProperties(state));
    setProperties(state, "115200,N,8,1", 294);
    EXPECT_EQ(state.portSettings, "9600,N,8,1");
    EXPECT_EQ(state.maxSamples, 10710);
    EXPECT_EQ(state.maxSamplesCustom, 10710);
}

TEST(Instruments, ThreeAndSixAreVoltageRecorders) {
    for (int code = 0; code <= 11; ++code)
        EXPECT_EQ(isVoltageRecorder(code), code == 3 || code == 6) << code;
}

TEST(Instruments, CaptionsOfTheOptionButtons) {
    EXPECT_EQ(optionCaption(2), "HVN500/550");
    EXPECT_EQ(optionCaption(11), "PQX-K4 Auto Select");
    EXPECT_EQ(optionCaption(0), "");
    EXPECT_EQ(optionCaption(12), "");
}

TEST(Instruments, ATypeIsNamedByCodeDisplayNameOrCaption) {
    EXPECT_EQ(typeFromText("11"), 11);
    EXPECT_EQ(typeFromText("PQX-K4-W"), 8);
    EXPECT_EQ(typeFromText("PQX-K4-AutoDetect"), 11);
    EXPECT_EQ(typeFromText("PQX-K4 Auto Select"), 11);
    EXPECT_EQ(typeFromText("HVN500/550"), 2);
    EXPECT_EQ(typeFromText("PQX"), 10);
}

TEST(Instruments, OtherTextsNameNoType) {
    for (const char* text :
         {"", "0", "12", "-1", "1x", " 1", "99999999999", "pqx", "(no instrument selected)"})
        EXPECT_EQ(typeFromText(text), std::nullopt) << text;
}

} // namespace
} // namespace tally
