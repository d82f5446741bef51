// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

class QFontMetrics;

namespace tally {

// How the labels of an axis stand: on one line or with the hour below the day, and every how many of them,
// so that none touches another.
struct LabelPlan {
    bool twoLines = false;
    int every = 1;
    int width = 0; // of the widest label, pixels

    bool operator==(const LabelPlan&) const = default;
};

// The plan for labels whose ticks are this many pixels apart.
LabelPlan planOf(const std::vector<QString>& labels, double apart, const QFontMetrics& metrics);

// Puts the last word of a label below the others.
void breakLabel(QString& label);

} // namespace tally
