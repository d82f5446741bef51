// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Display.h"

#include <optional>
#include <string>

namespace tally {

// The open files as they are shown together: reading by reading as they stand, or cut to the time that they
// share, so that reading i of each stands for the same time.
class FilesShown {
public:
    // The displayed range of the files, or a range of the first one. Refused when they are to be shown by
    // time and have no common time there. By reading it keeps a reference to the recordings.
    static Expected<FilesShown> of(const Recordings& recordings, const Display& display);
    static Expected<FilesShown> of(const Recordings& recordings, bool byTime, const Range& ofFirstFile);

    const Recordings& recordings() const { return cut_ ? *cut_ : *whole_; }
    // Of the first of these files.
    const Range& range() const { return range_; }
    bool byTime() const { return cut_.has_value(); }
    // What is to be known about the files together; may be empty.
    std::string remark() const;

    // A plot's request in terms of these files, and the plot made from it in terms of those that are open.
    PlotRequest request(PlotRequest request) const;
    Plot plot(Plot plot) const;

private:
    const Recordings* whole_ = nullptr;
    std::optional<Recordings> cut_;
    Range range_;
    int shift_ = 0; // index of the first reading shown in the first file that is open
};

} // namespace tally
