// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ShapedLine.h"

#include <QTextOption>
#include <QWidget>

#include <cstdint>
#include <cstring>

namespace tally {

namespace {

constexpr double noEnd = 1e7; // pixels; wider than any line

} // namespace

ShapedLine::ShapedLine(const QString& text, const QWidget& widget) : layout_(text, widget.font()) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    // The blanks at the end of a line belong to its width.
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout_.setTextOption(option);
    layout_.beginLayout();
    line_ = layout_.createLine();
    line_.setLineWidth(noEnd);
    layout_.endLayout();
}

void ShapedLine::draw(QPainter& painter, const QPointF& topLeft) const {
    layout_.draw(&painter, topLeft);
}

bool isPlain(QStringView text) {
    // Four letters at a time: a long table is looked through before it is shown.
    constexpr qsizetype together = 4;
    constexpr std::uint64_t beyondAscii = 0xFF80FF80FF80FF80;
    std::uint64_t seen = 0;
    qsizetype at = 0;
    for (; at + together <= text.size(); at += together) {
        std::uint64_t four = 0;
        std::memcpy(&four, text.utf16() + at, sizeof four);
        seen |= four;
    }
    for (; at < text.size(); ++at)
        seen |= text[at].unicode();
    return (seen & beyondAscii) == 0 && !text.contains(u'\t');
}

} // namespace tally
