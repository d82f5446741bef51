// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/Refusal.h"
#include "view/AxisChoice.h"
#include "view/Plot.h"
#include "view/ZoomTrail.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// What stands on the screen.
enum class View {
    none,
    summary,
    table,
    dataPlot,
    powerPlot,
    powerTable,
    powerSummary,
    chartFile, // a plot that does not belong to the open recordings
    reception  // the text of one
};

// A plot or a power plot of the open files.
bool isPlot(View view);
// What is worked out from line voltage and power factor.
bool isPowerView(View view);

enum class Statistic { average = 1, maximum = 2, minimum = 3 };

// What a plot made now is to show.
struct PlotRequest {
    Range range; // of the first file, whole triples; other files follow interval by interval
    Statistic statistic = Statistic::average;
    std::optional<Range> selected;        // the marked span, which the title block names
    std::optional<std::int16_t> yMinimum; // of the data plot's axis
    AxisChoices axes;                     // fixed ends and limit lines of each unit
    bool zoom = false;                    // the range is a span that was asked to be zoomed to
};

// A text in fixed columns with its heading line (bytes), lines ended by CR LF.
struct Table {
    std::string heading;
    std::string text;
};

// What is shown of the open recordings: the displayed range, the marked span, what holds for the next plot
// only, which view is on and the power factor. The only writer of all these. A value: a copy kept before a
// command and put back undoes it.
class Display {
public:
    // Files. Opening makes the whole file the range and the span and forgets every view; the choice of the
    // statistic and the power factor stay. So they do on closing.
    void opened(const Recordings& recordings, int slot);
    void closed();

    // The displayed range in readings of the first file, as it was set last.
    int gDatastart() const { return start_; }
    int gdataend() const { return end_; }
    bool gZoomFlag() const { return zoomFlag_; }
    // The span was applied: plot, table, summary, save, exports and forcing keep to it.
    bool zoomed() const { return spanApplied_; }
    bool spanSelected() const { return spanSelected_; }
    const Range& span() const { return span_; }
    Statistic statistic() const { return statistic_; }
    bool onePage() const { return onePage_; }

    // The displayed range of the first file, whole triples; never beyond its last reading.
    Range displayed(const Recordings& recordings) const;
    // The applied span, while there is one.
    std::optional<Range> selection(const Recordings& recordings) const;
    // What table, summary and exports cover of a file: its part of the applied span, else its whole triples.
    // Refused when the file does not reach the span.
    Expected<Range> part(const Recordings& recordings, int slot) const;
    // What saving and forcing cover of a file: the same, without a span every reading.
    Expected<Range> readings(const Recordings& recordings, int slot) const;

    // What View > Plot, the power plot and the one-page plot reset before they draw: the whole first file, no
    // span, no zoom. `showAll` leaves the zoom and nothing else.
    void startPlot(const Recordings& recordings);
    void startPower(const Recordings& recordings);
    void startOnePage(const Recordings& recordings);
    void showAll(const Recordings& recordings);

    // Through the ranges that were shown before; only when there is one. One that by time has nothing to show
    // is passed over.
    bool canGoBack() const { return trail_.canGoBack(); }
    bool canGoForward() const { return trail_.canGoForward(); }
    void goBack(const Recordings& recordings);
    void goForward(const Recordings& recordings);

    // Files side by side by time instead of reading by reading, until files are opened or closed. Refused
    // when they have no common time in the displayed range.
    bool byTime() const { return byTime_; }
    Expected<void> showByTime(const Recordings& recordings, bool byTime);
    // Every reading of the first file that can be shown: by time what all files have.
    Range reach(const Recordings& recordings) const;

    // Marking a span on a plot: the button is pressed on a point and released on another, in either
    // direction. Points outside the plot are clamped.
    void markStart(const Plot& plot, int point);
    void markEnd(const Plot& plot, int point);
    // The mark is given up.
    void unmark(const Recordings& recordings);
    // The next plot narrows the range to the marked span.
    void requestZoom();
    // The y axis of the next data plot begins at this whole number. Throws Type mismatch or Overflow.
    void setScale(std::string_view answer);
    // What holds for the axis of a unit until it is chosen otherwise; open files or not.
    const AxisChoice& axis(AxisUnit unit) const { return axes_.at(static_cast<std::size_t>(unit)); }
    void setFixedAxis(AxisUnit unit, const std::optional<FixedAxis>& fixed);
    void setLimits(AxisUnit unit, std::vector<LimitLine> limits);
    void setStatistic(Statistic statistic) { statistic_ = statistic; }
    // A reading range given as such: marked and applied at once, as whole triples of the first file. False,
    // and nothing changed, when it is turned round or outside the file.
    bool applyRange(const Recordings& recordings, int from, int to);

    // Whether redrawing means the power plot.
    bool powerView() const { return powerView_; }
    PlotRequest plotRequest(const Recordings& recordings) const;
    // A plot made from the request is shown: its range is the displayed one, what held for it alone is over.
    void plotShown(const PlotRequest& request, View view);
    void tableShown(View view, int slot, Table table);
    void textShown(View view, int slot);
    // Text that belongs to no open file, or a plot from a chart file.
    void foreignShown(View view) { textShown(view, 0); }

    View view() const { return view_; }
    // The file whose table or summary is shown.
    int shownSlot() const { return shownSlot_; }
    // What an export takes up: none after an export, until a view is shown again.
    View exportable() const { return exported_ ? View::none : view_; }
    void exported() { exported_ = true; }
    const Table& table() const { return table_; }
    const std::string& gTable() const { return table_.text; }

    // The power factor in use, never 0.
    float powerFactor() const { return powerFactor_; }
    void setPowerFactor(float factor) { powerFactor_ = factor == 0.0F ? 1.0F : factor; }
    // The line voltage was asked for since the files were opened: power can be shown without a question.
    bool powerKnown() const { return powerKnown_; }
    void setPowerKnown() { powerKnown_ = true; }

private:
    void wholeRange(const Recordings& recordings);
    void show(const Recordings& recordings, const ZoomTrail::Place& place);

    int start_ = 1;
    int end_ = 0;
    bool zoomFlag_ = false;
    Range span_;
    bool spanApplied_ = false;
    bool spanSelected_ = false;
    bool zoomRequest_ = false;
    std::optional<std::int16_t> yMinimum_;
    bool onePage_ = false;
    bool powerView_ = false;
    Statistic statistic_ = Statistic::average;
    View view_ = View::none;
    int shownSlot_ = 0;
    bool exported_ = false;
    Table table_;
    float powerFactor_ = 1.0F;
    bool powerKnown_ = false;
    ZoomTrail trail_;
    bool byTime_ = false;
    AxisChoices axes_;
};

inline constexpr std::string_view scalePrompt = "Enter min value for Y Scale";
inline constexpr std::string_view onePageButton = "print on one page";
inline constexpr std::string_view onePageLabel =
    "\r\nONE PAGE PLOT IS ENABLED\r\nClick the Print Icon to print this report";

} // namespace tally
