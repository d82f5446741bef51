// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Span.h"

#include "core/Numbers.h"

#include <algorithm>

namespace tally {

namespace {

void setSpan(const Recordings& recordings, DisplayState& state, int first, int last) {
    const FileFacts& info = recordings.info(0);
    state.spanStart = first;
    state.spanEnd = last;
    state.spanStartTime = timeOf(info, first);
    state.spanEndTime = timeOf(info, last);
}

// First entry of a point, the point clamped to the plot.
int entryOf(const Plot& plot, int point) {
    return plot.firstEntry + plot.entriesPerPoint * std::clamp(point, 0, std::max(plot.points - 1, 0));
}

void showWholeRange(Recordings& recordings, DisplayState& state) {
    recordings.gDatastart = 0;
    recordings.gdataend = recordings.info(0).count - 1;
    recordings.gZoomFlag = false;
    state.spanApplied = false;
    state.spanSelected = false;
    state.zoomRequest = false;
    // A zoom without a new mark shows the whole file.
    const ShownRange whole = wholeFile(recordings, 0);
    setSpan(recordings, state, whole.first, whole.last);
}

} // namespace

void forgetViews(DisplayState& state) {
    state = {};
}

void startPlot(Recordings& recordings, DisplayState& state) {
    showWholeRange(recordings, state);
    state.onePage = false;
    state.powerView = false;
}

void markSpanStart(const Recordings& recordings, DisplayState& state, const Plot& plot, int point) {
    const int first = entryOf(plot, point);
    setSpan(recordings, state, first, first + plot.entriesPerPoint - 1);
}

void markSpanEnd(const Recordings& recordings, DisplayState& state, const Plot& plot, int point) {
    const int released = entryOf(plot, point);
    const int pressed = state.spanStart;
    const int last = std::max(pressed, released) + plot.entriesPerPoint - 1;
    setSpan(recordings, state, std::min(pressed, released), last);
    state.spanSelected = true;
}

void requestZoom(Recordings& recordings, DisplayState& state) {
    state.spanSelected = false;
    state.zoomRequest = true;
    recordings.gZoomFlag = true;
}

ShownRange rangeToDraw(const Recordings& recordings, const DisplayState& state) {
    if (state.zoomRequest)
        return {state.spanStart, std::min(state.spanEnd, recordings.info(0).count - 1)};
    return shownRange(recordings, state, 0);
}

void settleRange(Recordings& recordings, DisplayState& state, const ShownRange& drawn) {
    if (state.zoomRequest) {
        recordings.gDatastart = drawn.first;
        state.spanApplied = true;
    }
    recordings.gdataend = drawn.last;
}

void clearOneShots(DisplayState& state) {
    state.spanSelected = false;
    state.zoomRequest = false;
    state.userScale = false;
}

bool applyRange(Recordings& recordings, DisplayState& state, int from, int to) {
    const auto range = wholeTriples(recordings, 0, from, to);
    if (!range)
        return false;
    setSpan(recordings, state, range->first, range->last);
    state.spanApplied = true;
    recordings.gDatastart = range->first;
    recordings.gdataend = range->last;
    recordings.gZoomFlag = true;
    return true;
}

void setScale(DisplayState& state, std::string_view answer) {
    state.yMinimum = textToInt16(answer);
    state.userScale = true;
}

void startOnePage(Recordings& recordings, DisplayState& state) {
    showWholeRange(recordings, state);
    state.onePage = true;
}

} // namespace tally
