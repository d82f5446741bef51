// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"

#include <algorithm>

namespace tally::archive {

std::vector<DaySpan> Coverage::gaps() const {
    std::vector<DaySpan> between;
    for (std::size_t at = 1; at < covered.size(); ++at)
        between.push_back({covered[at - 1].last + 1, covered[at].first - 1});
    return between;
}

Coverage coverageOf(ArchiveStore& store, const Selection& selection) {
    std::vector<DaySpan> spans = store.spans(selection);
    std::sort(spans.begin(), spans.end(),
              [](const DaySpan& a, const DaySpan& b) { return a.first < b.first; });
    Coverage coverage;
    for (const DaySpan& span : spans) {
        if (coverage.covered.empty() || span.first > coverage.covered.back().last + 1)
            coverage.covered.push_back(span);
        else
            coverage.covered.back().last = std::max(coverage.covered.back().last, span.last);
    }
    for (const DaySpan& span : coverage.covered)
        coverage.days += span.last - span.first + 1;
    return coverage;
}

} // namespace tally::archive
