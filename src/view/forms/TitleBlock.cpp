// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TitleBlock.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tally {
namespace {

constexpr int gap = 16; // pixels between columns
constexpr int flags = Qt::TextWordWrap | Qt::TextWrapAnywhere | Qt::AlignLeft | Qt::AlignTop;

} // namespace

void TitleBlock::setText(const QString& text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    lines_ = text.split(lineBreak);
    while (!lines_.isEmpty() && lines_.back().trimmed().isEmpty())
        lines_.removeLast();
    placed_.clear();
}

std::vector<std::pair<int, int>> TitleBlock::groups() const {
    std::vector<std::pair<int, int>> found;
    int from = 0;
    for (int line = 1; line < lines_.size(); ++line) {
        if (!lines_[line].startsWith(QStringLiteral("Location: ")))
            continue;
        found.emplace_back(from, line);
        from = line;
    }
    if (from < lines_.size())
        found.emplace_back(from, int(lines_.size()));
    return found;
}

int TitleBlock::place(int columns, int width, const QFont& font, std::vector<Placed>& placed,
                      bool& broken) const {
    const QFontMetrics metrics(font);
    const int columnWidth = std::max((width - (columns - 1) * gap) / columns, metrics.averageCharWidth());
    const auto parts = groups();
    const int perColumn = (int(parts.size()) + columns - 1) / columns;
    int deepest = 0;
    broken = false;
    for (int part = 0, top = 0; part < int(parts.size()); ++part) {
        const int column = part / perColumn;
        if (part % perColumn == 0)
            top = 0;
        for (int line = parts[std::size_t(part)].first; line < parts[std::size_t(part)].second; ++line) {
            const QRect room(column * (columnWidth + gap), top, columnWidth, 1 << 20);
            const int taken = metrics.boundingRect(room, flags, lines_[line]).height();
            const int height = std::max(taken, metrics.height());
            broken = broken || taken > metrics.height() * 3 / 2;
            placed.push_back({QRectF(room.x(), top, columnWidth, height), line});
            top += height;
        }
        deepest = std::max(deepest, top);
    }
    return deepest;
}

int TitleBlock::layOut(int width, const QFont& font) {
    font_ = font;
    int best = 0;
    placed_.clear();
    for (int columns = std::clamp(int(groups().size()), 1, 4); columns > 0 && !isEmpty(); --columns) {
        std::vector<Placed> placed;
        bool broken = false;
        const int height = place(columns, width, font, placed, broken);
        if (placed_.empty() || height < best) {
            best = height;
            placed_ = std::move(placed);
        }
        if (!broken)
            break;
    }
    return best;
}

void TitleBlock::paint(QPainter& painter, int left, int top) const {
    painter.setFont(font_);
    // Paper may measure letters a little wider than the screen did: a line that fitted must not be broken
    // now.
    const double lineHeight = QFontMetrics(font_).height();
    for (const Placed& each : placed_) {
        const bool one = each.place.height() < lineHeight * 1.5;
        painter.drawText(each.place.translated(left, top),
                         one ? Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip : flags, lines_[each.line]);
    }
}

} // namespace tally
