// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/MenuStates.h"

#include <QMenu>
#include <QMenuBar>

namespace tally {
namespace {

using testing::WindowTest;

// The tree as it must be: depth, control name, caption.
struct Entry {
    int depth;
    const char* name;
    const char* caption;
};
constexpr Entry tree[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuItemOpen", "&Open"},
    {1, "mnuItemClose", "&Close"},
    {1, "mnuItemSave", "Save &As..."},
    {1, "mnuItemPrint", "&Print"},
    {2, "mnuItemPrintSum", "Data&Summary"},
    {2, "mnuItemPrintpwrSum", "Power Summary"},
    {2, "mnuItemPrintTable", "Data&Table"},
    {2, "mnuItemPrintPwrTable", "Power Table"},
    {1, "mnuItemImport", "Import"},
    {1, "mnuItemExportType", "&Export"},
    {2, "mnuitemexprep", "Metering Data Report"},
    {2, "MnuItemexpdatacsv", "Data: Table"},
    {2, "mnuItemexpdata1perLine", "Data: 1 Rdg per Line"},
    {2, "mnuItemExportReadings", "&Readings..."},
    {1, "mnuMRU", ""},
    {1, "mnuMRU", ""},
    {1, "mnuMRU", ""},
    {1, "mnuMRU", ""},
    {1, "mnuItemExit", "E&xit"},
    {1, "mnuItemArchive", "Arc&hive..."},
    {0, "mnusurvey", "Load Survey"},
    {1, "mnuitemsurvfil", "Open File"},
    {0, "mnuEdit", "E&dit"},
    {1, "mnuItemNotes", "&Notes"},
    {1, "mnuItemForceRdg", "&Force Zoomed Readings"},
    {0, "mnuView", "Data &View"},
    {1, "mnuItemViewPlot", "&Plot"},
    {1, "mnuItemViewTable", "&Table"},
    {1, "mnuItemRefresh", "&Refresh Graph"},
    {1, "mnuItemViewsummary", "&Summary"},
    {1, "pwrview", "Power View"},
    {2, "mnuItemViewPower", "Power Plot"},
    {2, "mnuItemViewPwrTable", "Power Table"},
    {2, "mnuItemViewpwrsummry", "Power Summary"},
    {1, "mnuItemViewStudy", "Load Stud&y"},
    {1, "mnuItemAlign", "&Align by Time"},
    {0, "mnuZoom", "&Zoom"},
    {0, "mnuInstrument", "&Instrument"},
    {1, "mnuItemDownload", "&DownLoad"},
    {1, "mnuItemInitialize", "&Initialize"},
    {1, "mnuItemRecover", "&Recover"},
    {1, "mnuItemStatusCheck", "&Status Check"},
    {1, "mnuItemFind", "&Find Instrument"},
    {0, "mnuOptions", "&Options"},
    {1, "SpecialTest", "Special Test"},
    {1, "mnuItemDefaultDir", "&Default Dir"},
    {1, "mnuItemPortSelect", "&Com Port Selection"},
    {1, "mnuItemInstSelect", "&Instrument Selection"},
    {1, "mnuItemUserID", "&User Name"},
    {1, "mnuItemScale", "&Scale"},
    {1, "mnuItemAnnot", "&Annotate"},
    {2, "mnuItemadd", "Add &Note"},
    {2, "mnuItemClearNote", "&Clear Notes"},
    {1, "mnuItemPF", "&Power Factor"},
    {1, "mnuItemOnepgPlot", "&One-page Plot"},
    {1, "mnuLanguage", "&Language"},
    {2, "language", "&System"},
    {2, "language_en", "&English"},
    {2, "language_de", "&Deutsch"},
    {2, "language_fr", "&Français"},
    {2, "language_es", "Es&pañol"},
    {0, "mnuChart", "&Chart"},
    {1, "mnuItemBack", "&Back"},
    {1, "mnuItemForward", "&Forward"},
    {1, "mnuItemShowAll", "Show &All"},
    {1, "mnuGo", "&Go"},
    {2, "mnuItemPreviousDay", "Previous &Day"},
    {2, "mnuItemNextDay", "&Next Day"},
    {2, "mnuItemPreviousWeek", "Previous &Week"},
    {2, "mnuItemNextWeek", "Next W&eek"},
    {2, "mnuItemPreviousMonth", "Previous &Month"},
    {2, "mnuItemNextMonth", "Next M&onth"},
    {1, "mnuLook", "Loo&k"},
    {2, "mnuItemEnlarge", "&Enlarge"},
    {2, "mnuItemReduce", "&Reduce"},
    {2, "mnuItemWholePicture", "&Whole Picture"},
    {2, "mnuItemBox", "&Box"},
    {2, "mnuItemEarlier", "Ear&lier"},
    {2, "mnuItemLater", "La&ter"},
    {1, "mnuLines", "&Lines"},
    {2, "mnuItemLine1", "Line &1"},
    {2, "mnuItemLine2", "Line &2"},
    {2, "mnuItemLine3", "Line &3"},
    {1, "mnuItemFigures", "Span F&igures"},
    {1, "mnuItemFixedAxis", "Fi&xed Axis..."},
    {1, "mnuItemLimits", "Li&mit Lines..."},
    {1, "mnuItemPicture", "&Picture..."},
    {1, "mnuItemSaveChart", "&Save Chart..."},
    {1, "mnuItemCopy", "&Copy\tCtrl+C"},
    {1, "mnuItemPreview", "Pre&view..."},
    {0, "mnuHelp", "&Help"},
    {1, "mnuItemHelp", "&Help"},
    {1, "mnuItemAbout", "&About"},
};

void collect(const QList<QAction*>& actions, int depth, std::vector<std::string>& lines) {
    for (const QAction* action : actions) {
        if (action->isSeparator())
            continue;
        lines.push_back(std::to_string(depth) + " " + action->objectName().toStdString() + " " +
                        action->text().toStdString());
        if (action->menu())
            collect(action->menu()->actions(), depth + 1, lines);
    }
}

class MenuTree : public WindowTest {};

TEST_F(MenuTree, MenuTreeHasEveryItemInOrderUnderItsNameAndCaption) {
    std::vector<std::string> expected;
    for (const Entry& entry : tree)
        expected.push_back(std::to_string(entry.depth) + " " + entry.name + " " + entry.caption);
    std::vector<std::string> found;
    collect(window.menuBar()->actions(), 0, found);
    EXPECT_EQ(found, expected);
}

TEST_F(MenuTree, RecentFileEntriesAreAnArrayWithIndicesOneToFour) {
    const auto entries = window.findChildren<QAction*>(QStringLiteral("mnuMRU"));
    ASSERT_EQ(entries.size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(entries[i]->property("Index").toInt(), i + 1);
}

// What each event does to each item: '+' on, '-' off, '.' as it was.
struct State {
    const char* item;
    const char* after;
};
// clang-format off
constexpr State states[] = {
    //                         start-up, close
    //                         |  opened, voltage, third opened
    //                         |  |   text kept, forced, saved
    //                         |  |   |   table, text shown
    //                         |  |   |   |  plotted, power plotted, span marked, zoomed, one-page
    {"mnuItemOpen",           "++ ..- ... .. ....."},
    {"mnuItemClose",          "+- +.. ... .. ....."},
    {"mnuItemSave",           "-- +.. ++- .. ...+."},
    {"mnuItemExportType",     "-- +.. ... .. ....."},
    {"mnuitemexprep",         "-. ... ... .. .+..."},
    {"MnuItemexpdatacsv",     "-. ... ... +- +-..."},
    {"mnuItemexpdata1perLine","-. ... ... +- --..."},
    {"mnuView",               "-- +.. ... .. ....."},
    {"mnuItemViewPlot",       "+- +.. ... .. ....."},
    {"mnuItemViewTable",      "-- +.. ... .. ....."},
    {"mnuItemPrintTable",     "-- +.. ... .. ....."},
    {"mnuItemViewsummary",    "+. +.. ... .. ....."},
    {"mnuItemRefresh",        "-. ... ... .. ++..."},
    {"mnuZoom",               "-- ... ... .. --+.-"},
    {"mnuItemScale",          "-. ... ... .. ++..."},
    {"mnuItemAnnot",          "-. ... ... .. ++..."},
    {"pwrview",               "+- +-. ... .. ....."},
    {"mnuItemViewPower",      "+- +-. ... .. ....."},
    {"mnuItemViewpwrsummry",  "+- +.. ... .. ....."},
    {"mnuItemPrintpwrSum",    "+. +-. ... .. ....."},
    {"mnuItemViewPwrTable",   "-- ... ... .. .+..."},
    {"mnuItemPrintPwrTable",  "-. .-. ... .. .+..."},
    {"mnuItemInitialize",     "+. ... ... .. ....."},
    {"mnuItemViewStudy",      "-- +.. ... .. ....."},
    {"mnuItemOnepgPlot",      "+- ... ... .. ++..."},
};
// clang-format on
constexpr MenuEvent events[] = {MenuEvent::startUp,    MenuEvent::close,       MenuEvent::opened,
                                MenuEvent::voltage,    MenuEvent::thirdOpened, MenuEvent::textKept,
                                MenuEvent::forced,     MenuEvent::saved,       MenuEvent::tableShown,
                                MenuEvent::textShown,  MenuEvent::plotted,     MenuEvent::powerPlotted,
                                MenuEvent::spanMarked, MenuEvent::zoomed,      MenuEvent::onePage};

class MenuState : public WindowTest, public ::testing::WithParamInterface<State> {};

TEST_P(MenuState, EachEventSwitchesTheItemAsItMustFromEitherState) {
    const char* name = GetParam().item;
    std::string after = GetParam().after;
    std::erase(after, ' ');
    ASSERT_EQ(after.size(), std::size(events));
    for (std::size_t i = 0; i < std::size(events); ++i)
        for (const bool before : {true, false}) {
            window.menus().set(name, before);
            ASSERT_EQ(enabled(name), before) << "an item without a handler is never enabled";
            window.menus().apply(events[i]);
            EXPECT_EQ(enabled(name), after[i] == '.' ? before : after[i] == '+') << "event " << i;
        }
}

INSTANTIATE_TEST_SUITE_P(Items, MenuState, ::testing::ValuesIn(states),
                         [](const auto& test) { return std::string(test.param.item); });

TEST(MenuStates, NoOtherItemIsSwitched) {
    EXPECT_EQ(menuStates().size(), std::size(states));
    EXPECT_EQ(menuEvents, int(std::size(events)));
}

TEST_F(MenuTree, AtStartUpOnlyWhatNeedsNoFileIsEnabled) {
    EXPECT_TRUE(enabled("mnuItemOpen"));
    EXPECT_TRUE(enabled("mnuItemImport"));
    EXPECT_FALSE(enabled("mnuView"));
    EXPECT_FALSE(enabled("mnuItemSave"));
    EXPECT_FALSE(enabled("mnuItemRefresh"));
    EXPECT_TRUE(enabled("mnuItemPF"));
}

} // namespace
} // namespace tally
