// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"
#include "view/FilesShown.h"
#include "view/Power.h"
#include "view/Printinfo.h"
#include "view/SpanFigures.h"

#include <functional>
#include <string>
#include <string_view>

namespace tally {

class Menus;
class NoticeBar;
class Screen;
class StatusPanels;

inline constexpr std::string_view noFileOpen = "Error - No file available. Need to open a file.";

// Refused when no file is open.
Done needFile(const Recordings& recordings);

// What is shown of the open files: each view is made from the recordings and the display as they are at that
// moment, and shown.
class Views {
public:
    Views(const Services& services, Dispatcher& dispatcher, Screen& screen, Menus& menus,
          StatusPanels& status, NoticeBar& notices)
        : services_(services),
          dispatcher_(dispatcher),
          screen_(screen),
          menus_(menus),
          status_(status),
          notices_(notices) {}

    // The displayed range as the plot that is on: data plot or power plot.
    Done redraw();
    // A span was marked in the plot that was just redrawn.
    void spanMarked();
    Done showTable(int slot);
    Done showSummary(int slot);
    Done showPowerTable();
    Done showPowerSummary();
    // A text that belongs to no open file; `remark` goes to the status line.
    void showReception(const std::string& text, const std::string& remark);
    // A plot that does not belong to the open files: no range, no read-out.
    void showChartFile(Plot plot, const std::string& path);

    // Makes what is shown anew after readings or notes have changed. When that fails, it is told, and the
    // status line says that what is shown is no longer current.
    void renew();
    // The same as a step of a command, which a failure ends.
    Done again();
    // The same where what is shown comes from line voltage or power factor.
    void renewPower();
    // What must be known about the open files together, as a notice.
    void showTogether();
    // Takes every view away.
    void reset();

    // Makes a page of the window that is none of these views anew, if it is shown.
    std::function<void()> renewPage = [] {};

    PowerBasis basis() const;
    // The files as they are shown, over the displayed range.
    Expected<FilesShown> files() const { return FilesShown::of(services_.recordings, services_.display); }
    // Their power; what can be shown or written of it is enabled then.
    Expected<Power> power(const FilesShown& files);
    // The figures of a range of the first file, of the lines that the plot on the screen shows.
    // Refused, too, when they overflow.
    Expected<SpanFigures> figures(const Range& range) const;
    // The summary of a file as it now is.
    std::string summary(int slot) const;

private:
    Expected<SpanFigures> figuresOf(const Range& range) const;
    Done redrawPower(const PlotRequest& request, const FilesShown& files);
    std::optional<SelectedSpan> selected(int slot) const;
    std::string energy() const;
    void showPlot(const Plot& plot, View view, const PlotRequest& request);
    void showPart(int slot);

    const Services& services_;
    Dispatcher& dispatcher_;
    Screen& screen_;
    Menus& menus_;
    StatusPanels& status_;
    NoticeBar& notices_;
};

} // namespace tally
