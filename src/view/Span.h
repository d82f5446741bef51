// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"
#include "view/Plot.h"
#include "view/ShownRange.h"

#include <string_view>

namespace tally {

// To be called when a file was opened, recovered or all were closed: no span, no power plot, no energy.
void forgetViews(DisplayState& state);

// What View > Plot resets before it draws: the whole first file, no span, no zoom, not on one page.
void startPlot(Recordings& recordings, DisplayState& state);

// Marking a span on the chart: the button is pressed on a point and released on another, in either direction.
// Points outside the plot are clamped. Release sets the span-selected flag; redraw to show it in the title.
void markSpanStart(const Recordings& recordings, DisplayState& state, const Plot& plot, int point);
void markSpanEnd(const Recordings& recordings, DisplayState& state, const Plot& plot, int point);

// Zoom: the next plot narrows the range to the marked span.
void requestZoom(Recordings& recordings, DisplayState& state);

// The range that a plot made now has: the marked span where a zoom was requested, else the displayed range.
ShownRange rangeToDraw(const Recordings& recordings, const DisplayState& state);
// Makes it the displayed range once it is drawn.
void settleRange(Recordings& recordings, DisplayState& state, const ShownRange& drawn);
// Span selected, zoom request and y scale hold for one plot only.
void clearOneShots(DisplayState& state);

// A reading range given as such (command line): marked and applied at once, as whole triples of the first
// file. False, and nothing changed, when it is turned round or outside the file.
bool applyRange(Recordings& recordings, DisplayState& state, int from, int to);

// Scale: keeps the answer for the next data plot. Throws Type mismatch or Overflow, nothing changed.
void setScale(DisplayState& state, std::string_view answer);
inline constexpr std::string_view scalePrompt = "Enter min value for Y Scale";

// One-page plot: the whole first file, no span, no zoom; redraw the current view afterwards.
void startOnePage(Recordings& recordings, DisplayState& state);
inline constexpr std::string_view onePageButton = "print on one page";
inline constexpr std::string_view onePageLabel =
    "\r\nONE PAGE PLOT IS ENABLED\r\nClick the Print Icon to print this report";

} // namespace tally
