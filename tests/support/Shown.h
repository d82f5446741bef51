// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/FixedClock.h"
#include "support/SampleFile.h"
#include "view/Display.h"
#include "view/PlotModel.h"
#include "view/Power.h"

#include <gtest/gtest.h>

namespace tally::testing {

// Open files with what is shown of them, driven step by step as the window does.
class ShownFiles : public ::testing::Test {
protected:
    Recordings recordings;
    Display display;
    FixedClock clock;
    PowerBasis basis; // 13,800 V, power factor 1

    // The plot of the displayed range as data.
    Plot draw() {
        const PlotRequest request = display.plotRequest(recordings);
        Plot plot = DisplPlot(recordings, request, clock);
        display.plotShown(request, View::dataPlot);
        return plot;
    }
    // The same as power.
    Plot drawPower() {
        const PlotRequest request = display.plotRequest(recordings);
        Plot plot =
            DisplPlotPwr(recordings, request, powerOf(recordings, request.range, basis).value(), clock);
        display.plotShown(request, View::powerPlot);
        return plot;
    }
    Plot viewPlot() {
        display.startPlot(recordings);
        return draw();
    }
    Plot viewPower() {
        display.startPower(recordings);
        return drawPower();
    }
    void mark(const Plot& plot, int pressed, int released) {
        display.markStart(plot, pressed);
        display.markEnd(plot, released);
    }
    Plot zoom() {
        display.requestZoom();
        return display.powerView() ? drawPower() : draw();
    }
    // The power of the displayed range.
    Power power() { return powerOf(recordings, display.displayed(recordings), basis).value(); }
    void setVolts(int volts) { basis.vline = std::to_string(volts); }
};

} // namespace tally::testing
