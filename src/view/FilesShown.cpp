// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FilesShown.h"

#include "core/TimeAxis.h"
#include "view/FilesTogether.h"

#include <utility>

namespace tally {

Expected<FilesShown> FilesShown::of(const Recordings& recordings, const Display& display) {
    return of(recordings, display.byTime(), display.displayed(recordings));
}

Expected<FilesShown> FilesShown::of(const Recordings& recordings, bool byTime, const Range& ofFirstFile) {
    FilesShown shown;
    shown.whole_ = &recordings;
    shown.range_ = ofFirstFile;
    if (!byTime)
        return shown;
    const auto axis = timeAxis(recordings, ofFirstFile);
    if (!axis)
        return tl::make_unexpected(axis.error());
    shown.cut_ = aligned(recordings, *axis);
    shown.range_ = {0, axis->points * axis->stride - 1};
    shown.shift_ = axis->first.front();
    return shown;
}

std::string FilesShown::remark() const {
    if (!byTime())
        return togetherLine(*whole_);
    const FileFacts& info = cut_->info(0);
    return "Readings are combined by time, " + screenTime(timeOf(info, range_.first)) + " to " +
           screenTime(timeOf(info, range_.last));
}

PlotRequest FilesShown::request(PlotRequest request) const {
    request.range = range_;
    if (request.selected)
        request.selected = Range{request.selected->first - shift_, request.selected->last - shift_};
    return request;
}

Plot FilesShown::plot(Plot plot) const {
    plot.firstEntry += shift_;
    if (byTime())
        plot.remark = remark() + (plot.remark.empty() ? "" : "; " + plot.remark);
    return plot;
}

} // namespace tally
