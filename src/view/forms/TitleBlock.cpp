// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TitleBlock.h"

#include "view/forms/TextWrap.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tally {
namespace {

constexpr int gap = 16; // pixels between columns
constexpr int mostColumns = 4;
constexpr int side = Qt::AlignLeft | Qt::AlignTop;

} // namespace

void TitleBlock::setText(const QString& text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    lines_ = text.split(lineBreak);
    static const QRegularExpression trailing(QStringLiteral("\\s+$"));
    for (QString& line : lines_)
        line.remove(trailing); // nobody sees them, and they would take room
    while (!lines_.isEmpty() && lines_.back().isEmpty())
        lines_.removeLast();
    placed_.clear();
    group();
}

// The head, the notes of each file, the marked span: each stays together.
void TitleBlock::group() {
    const auto starts = [this](int line, const QString& with) { return lines_[line].startsWith(with); };
    const int end = int(lines_.size());
    int tail = end;
    if (end > 0 && starts(end - 1, QStringLiteral("Selected:")))
        --tail;
    tail_ = {tail, end};
    files_.clear();
    head_ = {0, tail};
    for (int line = 0; line < tail; ++line) {
        if (!starts(line, QStringLiteral("Location: ")))
            continue;
        (files_.empty() ? head_ : files_.back()).last = line;
        files_.push_back({line, tail});
    }
}

bool TitleBlock::fits(const Group& group, int width) const {
    const QFontMetrics metrics(font_);
    for (int line = group.first; line < group.last; ++line)
        if (metrics.horizontalAdvance(lines_[line]) > width)
            return false;
    return true;
}

int TitleBlock::place(const Group& group, int left, int top, int width, std::vector<Placed>& placed) const {
    const QFontMetrics metrics(font_);
    int height = 0;
    for (int line = group.first; line < group.last; ++line) {
        const QRect room(left, top + height, width, 1 << 20);
        int taken = metrics.height();
        if (metrics.horizontalAdvance(lines_[line]) > width)
            taken =
                metrics.boundingRect(room, wrapFlags(lines_[line], width, metrics), lines_[line]).height();
        placed.push_back({QRectF(left, top + height, width, taken), line});
        height += taken;
    }
    return height;
}

// The head stands beside the notes where it fits into a column, else above them.
int TitleBlock::placeAll(int columns, int width, std::vector<Placed>& placed) const {
    const int columnWidth =
        std::max((width - (columns - 1) * gap) / columns, QFontMetrics(font_).averageCharWidth());
    std::vector<Group> parts = files_;
    int above = 0;
    if (fits(head_, columnWidth))
        parts.insert(parts.begin(), head_);
    else
        above = place(head_, 0, 0, width, placed);
    const int perColumn = std::max((int(parts.size()) + columns - 1) / columns, 1);
    int deepest = above;
    for (int part = 0, top = above; part < int(parts.size()); ++part) {
        const int column = part / perColumn;
        if (part % perColumn == 0)
            top = above;
        top += place(parts[std::size_t(part)], column * (columnWidth + gap), top, columnWidth, placed);
        deepest = std::max(deepest, top);
    }
    return deepest + place(tail_, 0, deepest, width, placed);
}

int TitleBlock::layOut(int width, const QFont& font) {
    font_ = font;
    placed_.clear();
    int best = 0;
    for (int columns = std::clamp(int(files_.size()) + 1, 1, mostColumns); columns > 0 && !isEmpty();
         --columns) {
        std::vector<Placed> placed;
        const int height = placeAll(columns, width, placed);
        if (placed_.empty() || height < best) {
            best = height;
            placed_ = std::move(placed);
        }
    }
    return best;
}

void TitleBlock::paint(QPainter& painter, int left, int top) const {
    painter.setFont(font_);
    // Paper may measure letters a little wider than the screen did: a line that fitted must not be broken
    // now.
    const QFontMetrics metrics(font_);
    for (const Placed& each : placed_) {
        const QString& line = lines_[each.line];
        const bool one = each.place.height() <= metrics.height();
        painter.drawText(each.place.translated(left, top),
                         one ? side | Qt::TextDontClip : wrapFlags(line, int(each.place.width()), metrics),
                         line);
    }
}

} // namespace tally
