// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Display.h"

#include "core/Numbers.h"
#include "core/TimeAxis.h"
#include "view/Range.h"

#include <algorithm>
#include <utility>

namespace tally {

namespace {

// First entry of a point, the point clamped to the plot.
int entryOf(const Plot& plot, int point) {
    return plot.firstEntry + plot.entriesPerPoint * std::clamp(point, 0, std::max(plot.points - 1, 0));
}

tl::unexpected<Refusal> notReached(const Recordings& recordings, const Range& range, int slot) {
    const FileFacts& first = recordings.info(0);
    return refuse("The zoomed range holds no reading of this file. Nothing was done.",
                  recordings.info(slot).path,
                  "The range is " + screenTime(timeOf(first, range.first)) + " to " +
                      screenTime(timeOf(first, range.last)) + " of " + fileNameOf(first.path) +
                      ". Show all readings first, or choose another file.");
}

} // namespace

bool isPlot(View view) {
    return view == View::dataPlot || view == View::powerPlot;
}

bool isPowerView(View view) {
    return view == View::powerPlot || view == View::powerTable || view == View::powerSummary;
}

void Display::opened(const Recordings& recordings, int slot) {
    closed();
    span_ = wholeFile(recordings, 0);
    start_ = 0;
    end_ = recordings.info(slot).count - 1;
}

void Display::closed() {
    Display fresh;
    fresh.start_ = start_;
    fresh.end_ = end_;
    fresh.statistic_ = statistic_;
    fresh.powerFactor_ = powerFactor_;
    fresh.axes_ = axes_;
    *this = std::move(fresh);
}

Range Display::reach(const Recordings& recordings) const {
    const Range whole = wholeFile(recordings, 0);
    if (!byTime_)
        return whole;
    const auto axis = timeAxis(recordings);
    return axis ? Range{axis->reading(0, 0), axis->reading(0, axis->points - 1, axis->stride - 1)} : whole;
}

Range Display::displayed(const Recordings& recordings) const {
    const Range whole = reach(recordings);
    if (!spanApplied_)
        return whole;
    return wholeTriples(recordings, 0, std::max(start_, whole.first), std::min(end_, whole.last))
        .value_or(Range{start_, start_ - 1});
}

std::optional<Range> Display::selection(const Recordings& recordings) const {
    return spanApplied_ ? std::optional(displayed(recordings)) : std::nullopt;
}

Expected<Range> Display::part(const Recordings& recordings, int slot) const {
    const Range whole = wholeFile(recordings, slot);
    if (!spanApplied_)
        return whole;
    const Range shown = displayed(recordings);
    if (byTime_) {
        const auto axis = timeAxis(recordings, shown);
        if (!axis)
            return tl::make_unexpected(axis.error());
        return Range{axis->reading(slot, 0), axis->reading(slot, axis->points - 1, axis->stride - 1)};
    }
    Range range = sameIntervals(recordings, shown, slot);
    range.last = std::min(range.last, whole.last);
    if (range.entries() == 0)
        return notReached(recordings, shown, slot);
    return range;
}

Expected<Range> Display::readings(const Recordings& recordings, int slot) const {
    return spanApplied_ ? part(recordings, slot) : recordings.all(slot);
}

void Display::wholeRange(const Recordings& recordings) {
    start_ = 0;
    end_ = recordings.info(0).count - 1;
    zoomFlag_ = false;
    spanApplied_ = false;
    spanSelected_ = false;
    zoomRequest_ = false;
    // A zoom without a new mark shows the whole file.
    span_ = wholeFile(recordings, 0);
    trail_.visit(std::nullopt);
}

void Display::startPlot(const Recordings& recordings) {
    wholeRange(recordings);
    onePage_ = false;
    powerView_ = false;
}

void Display::startPower(const Recordings& recordings) {
    startPlot(recordings);
    yMinimum_.reset();
    powerView_ = true;
}

void Display::startOnePage(const Recordings& recordings) {
    wholeRange(recordings);
    onePage_ = true;
}

void Display::showAll(const Recordings& recordings) {
    wholeRange(recordings);
}

void Display::show(const Recordings& recordings, const ZoomTrail::Place& place) {
    if (place)
        applyRange(recordings, place->first, place->last);
    else
        wholeRange(recordings);
}

// What is shown now is where the trail already stands.
void Display::goBack(const Recordings& recordings) {
    do
        show(recordings, trail_.back());
    while (displayed(recordings).entries() == 0 && canGoBack());
}

void Display::goForward(const Recordings& recordings) {
    do
        show(recordings, trail_.forward());
    while (displayed(recordings).entries() == 0 && canGoForward());
}

Expected<void> Display::showByTime(const Recordings& recordings, bool byTime) {
    if (byTime) {
        const Range shown = displayed(recordings);
        if (const auto axis = timeAxis(recordings, shown); !axis)
            return tl::make_unexpected(axis.error());
    }
    byTime_ = byTime;
    unmark(recordings);
    return {};
}

void Display::setFixedAxis(AxisUnit unit, const std::optional<FixedAxis>& fixed) {
    axes_.at(static_cast<std::size_t>(unit)).fixed = fixed;
}

void Display::setLimits(AxisUnit unit, std::vector<LimitLine> limits) {
    axes_.at(static_cast<std::size_t>(unit)).limits = std::move(limits);
}

void Display::markStart(const Plot& plot, int point) {
    const int first = entryOf(plot, point);
    span_ = {first, first + plot.entriesPerPoint - 1};
}

void Display::markEnd(const Plot& plot, int point) {
    const int released = entryOf(plot, point);
    const int pressed = span_.first;
    span_ = {std::min(pressed, released), std::max(pressed, released) + plot.entriesPerPoint - 1};
    spanSelected_ = true;
}

void Display::unmark(const Recordings& recordings) {
    span_ = displayed(recordings);
    spanSelected_ = false;
}

void Display::requestZoom() {
    spanSelected_ = false;
    zoomRequest_ = true;
    zoomFlag_ = true;
}

void Display::setScale(std::string_view answer) {
    yMinimum_ = textToInt16(answer);
}

bool Display::applyRange(const Recordings& recordings, int from, int to) {
    const auto range = wholeTriples(recordings, 0, from, to);
    if (!range)
        return false;
    span_ = *range;
    spanApplied_ = true;
    start_ = range->first;
    end_ = range->last;
    zoomFlag_ = true;
    trail_.visit(*range);
    return true;
}

PlotRequest Display::plotRequest(const Recordings& recordings) const {
    PlotRequest request;
    request.statistic = statistic_;
    request.yMinimum = yMinimum_;
    request.axes = axes_;
    request.zoom = zoomRequest_;
    request.range = displayed(recordings);
    if (zoomRequest_)
        request.range = {span_.first, std::min(span_.last, recordings.info(0).count - 1)};
    if (spanSelected_)
        request.selected = span_;
    return request;
}

void Display::plotShown(const PlotRequest& request, View view) {
    if (request.zoom) {
        start_ = request.range.first;
        spanApplied_ = true;
        trail_.visit(request.range);
    }
    // By time a plot may show less of a zoomed range than reading by reading; the range stays.
    if (request.zoom || !spanApplied_)
        end_ = request.range.last;
    spanSelected_ = false;
    zoomRequest_ = false;
    yMinimum_.reset();
    powerView_ = view == View::powerPlot;
    view_ = view;
    exported_ = false;
}

void Display::tableShown(View view, int slot, Table table) {
    textShown(view, slot);
    table_ = std::move(table);
}

void Display::textShown(View view, int slot) {
    view_ = view;
    shownSlot_ = slot;
    exported_ = false;
}

} // namespace tally
