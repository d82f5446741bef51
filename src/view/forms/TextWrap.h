// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetrics>
#include <QString>

namespace tally {

// Flags for text that is broken between words, and within a word only where one is wider than the line.
inline int wrapFlags(const QString& text, int width, const QFontMetrics& metrics) {
    int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        if (metrics.horizontalAdvance(word) > width)
            flags |= Qt::TextWrapAnywhere;
    return flags;
}

} // namespace tally
