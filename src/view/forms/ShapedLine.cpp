// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ShapedLine.h"

#include <QTextOption>
#include <QWidget>

#include <algorithm>

namespace tally {

namespace {

constexpr double noEnd = 1e7; // pixels; wider than any line

} // namespace

ShapedLine::ShapedLine(const QString& text, const QWidget& widget) : layout_(text, widget.font(), &widget) {
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

bool isPlain(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
}

} // namespace tally
