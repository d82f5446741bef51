// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TitleBlock.h"

#include "view/forms/TextWrap.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <utility>

namespace tally {
namespace {

constexpr int gap = 16; // pixels between columns, at least
constexpr int widestGap = 48;
constexpr int side = Qt::AlignLeft | Qt::AlignTop;

// The widths of columns that would like to be so wide: none wider than it needs, the wide ones cut to one
// width where there is no room for all.
std::vector<int> shared(std::vector<int> wanted, int room) {
    std::vector<int> order(wanted.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](int a, int b) { return wanted[std::size_t(a)] < wanted[std::size_t(b)]; });
    int left = int(order.size());
    for (const int index : order) {
        int& width = wanted[std::size_t(index)];
        width = std::min(width, std::max(room, 0) / left--);
        room -= width;
    }
    return wanted;
}

} // namespace

void TitleBlock::setText(const QString& text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    lines_ = text.split(lineBreak);
    static const QRegularExpression trailing(QStringLiteral("\\s+$"));
    for (QString& line : lines_)
        line.remove(trailing); // nobody sees them, and they would take room
    while (!lines_.isEmpty() && lines_.back().isEmpty())
        lines_.removeLast();
    room_ = {}; // no places yet
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
        if (!starts(line, QStringLiteral("Location:")))
            continue;
        (files_.empty() ? head_ : files_.back()).last = line;
        files_.push_back({line, tail});
    }
}

int TitleBlock::widest(const Group& group) const {
    int widest = 0;
    for (int line = group.first; line < group.last; ++line)
        widest = std::max(widest, lengths_[std::size_t(line)]);
    return widest;
}

int TitleBlock::place(const Group& group, int left, int top, int width, std::vector<Placed>& placed) const {
    const QFontMetrics metrics(font_);
    int height = 0;
    for (int line = group.first; line < group.last; ++line) {
        const QRect room(left, top + height, width, 1 << 20);
        int taken = metrics.height();
        if (lengths_[std::size_t(line)] > width)
            taken =
                metrics.boundingRect(room, wrapFlags(lines_[line], width, metrics), lines_[line]).height();
        placed.push_back({QRectF(left, top + height, width, taken), line});
        height += taken;
    }
    return height;
}

// Bit k of `breaks` begins a column at part k + 1.
std::vector<TitleBlock::Column> TitleBlock::columns(const std::vector<Group>& parts, unsigned breaks,
                                                    int width) const {
    std::vector<Column> all;
    for (std::size_t part = 0; part < parts.size(); ++part) {
        if (part == 0 || (breaks >> (part - 1) & 1U) != 0)
            all.push_back({{}, 0});
        all.back().groups.push_back(parts[part]);
        all.back().width = std::max(all.back().width, widest(parts[part]));
    }
    std::vector<int> widths;
    for (const Column& column : all)
        widths.push_back(column.width);
    widths = shared(widths, width - (int(all.size()) - 1) * gap);
    for (std::size_t index = 0; index < all.size(); ++index)
        all[index].width = std::max(widths[index], QFontMetrics(font_).averageCharWidth());
    return all;
}

int TitleBlock::placeAll(bool headAbove, unsigned breaks, int width, std::vector<Placed>& placed) const {
    std::vector<Group> parts = files_;
    if (!headAbove)
        parts.insert(parts.begin(), head_);
    const int above = headAbove ? place(head_, 0, 0, width, placed) : 0;
    const std::vector<Column> all = columns(parts, breaks, width);
    int spare = width;
    for (const Column& column : all)
        spare -= column.width;
    const int between = all.size() > 1 ? std::clamp(spare / (int(all.size()) - 1), gap, widestGap) : 0;
    int deepest = above;
    int left = 0;
    for (const Column& column : all) {
        int top = above;
        for (const Group& group : column.groups)
            top += place(group, left, top, column.width, placed);
        deepest = std::max(deepest, top);
        left += column.width + between;
    }
    return deepest + place(tail_, 0, deepest, width, placed);
}

// The lowest of all ways to stand in columns; among equals that with most columns.
int TitleBlock::placeBest(int width) {
    const QFontMetrics metrics(font_);
    lengths_.clear();
    for (const QString& line : lines_)
        lengths_.push_back(metrics.horizontalAdvance(line));
    placed_.clear();
    int best = 0;
    for (const bool headAbove : {false, true}) {
        const std::size_t parts = files_.size() + (headAbove ? 0 : 1);
        const unsigned ways = parts > 1 ? 1U << (parts - 1) : 1U;
        for (unsigned breaks = ways; breaks-- > 0 && !isEmpty();) {
            std::vector<Placed> placed;
            const int height = placeAll(headAbove, breaks, width, placed);
            if (placed_.empty() || height < best) {
                best = height;
                placed_ = std::move(placed);
            }
        }
    }
    return best;
}

int TitleBlock::layOut(int width, int height, const QFont& font, int minimumLetters) {
    const QSize room(width, height);
    if (room == room_ && font == wanted_)
        return height_; // panning and zooming change nothing here
    room_ = room;
    wanted_ = font;
    font_ = font;
    height_ = placeBest(width);
    while (height_ > height && font_.pixelSize() > minimumLetters) {
        font_.setPixelSize(font_.pixelSize() - 1);
        height_ = placeBest(width);
    }
    return height_;
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
