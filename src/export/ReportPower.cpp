// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ReportPower.h"

#include "view/Plot.h"

#include <utility>

namespace tally {

namespace {

// The displayed range, put back at the end.
class KeptRange {
public:
    explicit KeptRange(Recordings& recordings)
        : recordings_(recordings), start_(recordings.gDatastart), end_(recordings.gdataend) {}
    ~KeptRange() {
        recordings_.gDatastart = start_;
        recordings_.gdataend = end_;
    }
    KeptRange(const KeptRange&) = delete;
    KeptRange& operator=(const KeptRange&) = delete;

private:
    Recordings& recordings_;
    int start_;
    int end_;
};

} // namespace

ShownRange reportRange(const Recordings& recordings, const DisplayState& state) {
    return state.spanApplied ? shownRange(recordings, state, 0) : wholeFile(recordings, 0);
}

bool powerCovers(const DisplayState& state, const ShownRange& range) {
    const int end = state.powerFirst + static_cast<int>(state.power.size());
    return state.powerDrawn && state.powerFirst <= range.first && range.last < end;
}

PowerRefusal powerForReport(Recordings& recordings, DisplayState& state, double volts, const Clock& clock) {
    const KeptRange kept(recordings);
    const ShownRange range = reportRange(recordings, state);
    recordings.gDatastart = range.first;
    recordings.gdataend = range.last;
    DisplayState aside = state;
    aside.zoomRequest = false;
    Plot plot;
    const PowerRefusal refusal = DisplPlotPwr(recordings, aside, volts, clock, plot);
    if (refusal != PowerRefusal::none)
        return refusal;
    state.power = std::move(aside.power);
    state.powerFirst = aside.powerFirst;
    state.powerExtremeMin = aside.powerExtremeMin;
    state.powerExtremeMax = aside.powerExtremeMax;
    state.energyText = std::move(aside.energyText);
    state.powerSource = std::move(aside.powerSource);
    state.powerDrawn = true;
    return refusal;
}

} // namespace tally
