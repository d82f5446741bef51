// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/LabelPlan.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

int widestLine(const std::vector<QString>& labels, const QFontMetrics& metrics, bool twoLines) {
    int widest = 0;
    for (QString label : labels) {
        if (twoLines)
            breakLabel(label);
        for (const QString& line : label.split(u'\n'))
            widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}

} // namespace

LabelPlan planOf(const std::vector<QString>& labels, double apart, const QFontMetrics& metrics) {
    const int gap = metrics.averageCharWidth() * 2;
    const int one = widestLine(labels, metrics, false);
    if (one + gap <= apart)
        return {false, 1, one};
    const int two = widestLine(labels, metrics, true);
    const double wanted = std::ceil((two + gap) / std::max(apart, 1.0));
    return {true, std::clamp(int(wanted), 1, std::max(int(labels.size()), 1)), two};
}

void breakLabel(QString& label) {
    if (const auto at = label.lastIndexOf(u' '); at >= 0)
        label[at] = u'\n';
}

} // namespace tally
