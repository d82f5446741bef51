// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/LegendRow.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace tally {
namespace {

constexpr int swatch = 30; // pixels of line before a name
constexpr int gap = 18;    // between entries

} // namespace

void LegendRow::setPlot(const Plot& plot) {
    entries_.clear();
    signs_ = plot.series.size() > 1;
    bool forced = false;
    for (int index = 0; index < int(plot.series.size()); ++index) {
        const PlotSeries& series = plot.series[std::size_t(index)];
        forced = forced || !series.forced.empty();
        if (!series.legend.empty())
            entries_.push_back({index, QString::fromStdString(series.legend), series.phase, {}});
    }
    if (forced)
        entries_.push_back({-1, QStringLiteral("Forced readings"), Phase::none, {}});
}

int LegendRow::layOut(int width, const QFont& font) {
    if (entries_.empty())
        return 0;
    const QFontMetrics metrics(font);
    const int height = metrics.height() + 4;
    int x = 0;
    int y = 0;
    for (Entry& entry : entries_) {
        const int wide = std::min(swatch + 6 + metrics.horizontalAdvance(entry.text) + 4, width);
        if (x > 0 && x + wide > width) {
            x = 0;
            y += height;
        }
        entry.place = QRect(x, y, wide, height);
        x += wide + gap;
    }
    return y + height;
}

int LegendRow::seriesAt(const QPointF& place) const {
    for (const Entry& entry : entries_)
        if (QRectF(entry.place).contains(place))
            return entry.series;
    return -1;
}

// A hidden line keeps its entry, crossed out, so that it can be brought back.
void LegendRow::paint(QPainter& painter, const QPoint& corner, const ChartLook& look,
                      const LinesShown& lines) const {
    const QFontMetrics metrics(look.font);
    for (const Entry& entry : entries_) {
        const QRect place = entry.place.translated(corner);
        const double middle = place.center().y();
        const bool hidden = lines.isHidden(entry.series);
        const QColor colour = entry.series < 0 ? look.forced : look.line(entry.phase, entry.series);
        QPen pen(hidden ? look.grid : colour, entry.series < 0 ? 4 : 2);
        if (const auto dashes = ChartLook::dashes(entry.phase); !dashes.isEmpty())
            pen.setDashPattern(dashes);
        painter.setPen(pen);
        painter.drawLine(QPointF(place.left(), middle), QPointF(place.left() + swatch, middle));
        if (signs_ && entry.series >= 0 && !hidden)
            SeriesPlottable::drawSign(painter, QPointF(place.left() + swatch / 2.0, middle), entry.series,
                                      colour, look.paper);
        QFont font = look.font;
        font.setStrikeOut(hidden);
        font.setUnderline(lines.lifted >= 0 && lines.lifted == entry.series);
        painter.setFont(font);
        painter.setPen(hidden ? look.frame : look.text);
        const QRect room = place.adjusted(swatch + 6, 0, 4, 0);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(entry.text, Qt::ElideMiddle, room.width()));
    }
}

} // namespace tally
