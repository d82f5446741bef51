// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WalkModel.h"
#include "WindowTest.h"

#include <memory>
#include <string>
#include <vector>

namespace tally::testing {

// What a walk can do; `choice` picks among what there is.
enum class Act {
    open,
    close,
    plot,
    power,
    refresh,
    mark,
    zoom,
    showAll,
    back,
    forward,
    day,
    align,
    unmark,
    onePage,
    scale,
    table,
    summary,
    powerTable,
    powerSummary,
    factor,
    force,
    undo,
    save,
    saveWhole,
    csv,
    textExport,
    perLine,
    metering,
    cancel // a command that asks, left by Cancel
};
constexpr int acts = int(Act::cancel) + 1;

struct Step {
    Act act;
    unsigned choice;
};

std::string textOf(const std::vector<Step>& steps);

// A window on doubles and the model beside it, both driven by the same steps.
class WalkDesk : public WindowTest {
public:
    WalkDesk();
    // Takes a step in both; what differs afterwards, empty when nothing does.
    std::string take(const Step& step);

private:
    void TestBody() override {}
    bool canClick(const char* name) { return item(name).isEnabled(); }
    void run(const Step& step);
    void runView(const Step& step);
    void runRange(const Step& step);
    void goTo(bool forward);
    void goToDay(unsigned choice);
    void align();
    // After a step that shows the same view of another range: whether it could.
    bool shownAgain(const WalkModel& before);
    void runPower(const Step& step);
    void runEdit(const Step& step);
    void runFile(const Step& step);
    void runExport(const Step& step);
    void markPoints(unsigned choice);
    void forceReadings(unsigned choice);
    void saveFile(unsigned choice);
    void exportCsv(unsigned choice);
    void exportTable(bool perLine);
    void exportMetering(unsigned choice);
    void cancelOne(unsigned choice);
    int chooseSlot(unsigned choice);
    bool askVoltage(unsigned choice);
    void refused() { ++told_; }

    std::string differences();
    std::string differentFiles();
    std::string differentPlot();
    std::string differentText();
    std::string differentTable(const std::string& heading, const std::string& text);
    std::string differentSummary(const std::string& text);
    std::string differentPowerSummary(const std::string& text);

    WalkModel model_;
    bool selected_ = false; // the plot just drawn names the marked span
    std::size_t told_ = 0;  // message boxes that were to come
    std::string wrong_;     // found while stepping
};

} // namespace tally::testing
