// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Report.h"
#include "study/forms/PlotBlocks.h"
#include "study/forms/PlotFrame.h"

#include <QImage>

#include <algorithm>
#include <array>

namespace tally::study {

namespace {

constexpr std::array<const char*, 3> kindTitles = {"Weekday", "Saturday", "Sunday"};

void labelHours(QPainter& painter, const ChartLook& look, const PlotFrame& frame, int step) {
    for (int hour = 0; hour <= 24; hour += step)
        frame.label(painter, look, hour * 60, QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0')));
}

class TypicalDaysPlot : public Block {
public:
    TypicalDaysPlot(const Study& study, std::size_t channel)
        : study_(study), channel_(study.channels[channel]), figures_(study.figures[channel]) {}

    double height(double) const override { return 190; }
    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        const double width = place.width() / double(kindTitles.size());
        for (std::size_t kind = 0; kind < kindTitles.size(); ++kind)
            paintKind(painter, look,
                      QRectF(place.left() + width * double(kind), place.top(), width, place.height()), kind);
    }

private:
    void paintKind(QPainter& painter, const ChartLook& look, const QRectF& place, std::size_t kind) const {
        const TypicalDay& day = figures_.days[kind];
        const auto [from, to] = axisOver(figures_.duration.back(), figures_.duration.front());
        const PlotFrame frame = {boxIn(place, look), 0, minutesPerDay, from, to};
        const QString days = QStringLiteral(" (%1 %2)")
                                 .arg(day.days)
                                 .arg(day.days == 1 ? QStringLiteral("day") : QStringLiteral("days"));
        const QString title = kind == 0 ? words(channel_.name) + QStringLiteral(": weekday")
                                        : QString::fromUtf8(kindTitles[kind]);
        frame.paint(painter, look, title + days, words(unitName(channel_.unit)));
        labelHours(painter, look, frame, 6);
        for (std::size_t first = 0; first < day.slots.size();) {
            std::size_t end = first;
            while (end < day.slots.size() && day.slots[end].readings > 0)
                ++end;
            if (end > first)
                paintStretch(painter, look, frame, day, first, end);
            first = end + 1;
        }
    }
    // Slots first to end − 1, all of which have readings.
    void paintStretch(QPainter& painter, const ChartLook& look, const PlotFrame& frame, const TypicalDay& day,
                      std::size_t first, std::size_t end) const {
        QPolygonF band;
        QPolygonF mean;
        const auto x = [&](std::size_t slot) { return frame.x(double(slot) * study_.axis.interval); };
        for (std::size_t slot = first; slot < end; ++slot) {
            band.append(QPointF(x(slot), frame.y(day.slots[slot].p90)));
            mean.append(QPointF(x(slot), frame.y(day.slots[slot].mean)));
        }
        for (std::size_t slot = end; slot-- > first;)
            band.append(QPointF(x(slot), frame.y(day.slots[slot].p10)));
        QColor fill = look.line(0);
        fill.setAlpha(70);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawPolygon(band);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(look.line(0), 1));
        if (mean.size() == 1)
            mean.append(mean.front() + QPointF(2, 0));
        painter.drawPolyline(mean);
    }

    const Study& study_;
    const Channel& channel_;
    const ChannelFigures& figures_;
};

// From blue over yellow to red; light enough at the low end to be told from no reading.
QRgb heatColour(double part) {
    constexpr std::array<std::array<double, 3>, 4> colours = {
        {{225, 236, 247}, {120, 180, 215}, {250, 200, 90}, {185, 30, 40}}};
    const double at = std::clamp(part, 0.0, 1.0) * (colours.size() - 1);
    const auto low = std::min(std::size_t(at), colours.size() - 2);
    const double rest = at - double(low);
    const auto mix = [&](std::size_t i) {
        return int(colours[low][i] + (colours[low + 1][i] - colours[low][i]) * rest);
    };
    return qRgb(mix(0), mix(1), mix(2));
}

class HeatMap : public Block {
public:
    HeatMap(const Study& study, std::size_t channel)
        : axis_(study.axis),
          channel_(study.channels[channel]),
          minimum_(study.figures[channel].duration.back()),
          maximum_(study.figures[channel].duration.front()),
          firstDay_(dayOf(study.axis.start)),
          days_(study.days()),
          rows_(minutesPerDay / study.axis.interval) {}

    double height(double) const override { return 210; }
    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        const QRectF box = boxIn(place, look);
        box_ = box.translated(-place.topLeft());
        if (image_.isNull())
            fill();
        painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
        // A cell is a figure: paper must not blur its colour.
        painter.setRenderHint(QPainter::LosslessImageRendering);
        painter.drawImage(box, image_);
        painter.setPen(look.frame);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
        const PlotFrame frame = {box, 0, double(days_), 0, minutesPerDay};
        painter.setPen(look.text);
        painter.setFont(look.font);
        const QFontMetricsF metrics(look.font);
        painter.drawText(QPointF(box.left(), box.top() - metrics.descent() - 3),
                         words(channel_.name) + QStringLiteral(": day by time of day"));
        for (int hour = 0; hour <= 24; hour += 6)
            painter.drawText(
                QRectF(box.left() - 100, frame.y(hour * 60) - metrics.height(), 94, 2 * metrics.height()),
                Qt::AlignRight | Qt::AlignVCenter,
                QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0')));
        const int step = int(labelStep(look, frame, std::size_t(days_), QStringLiteral("0000-00-00")));
        for (int day = step / 2; day < days_; day += step)
            frame.label(painter, look, day + 0.5,
                        words(formatTime({(firstDay_ + day) * minutesPerDay}, "%Y-%m-%d")));
    }
    std::optional<ReadingTime> timeAt(const QRectF& place, QPointF at) const override {
        const auto point = pointAt(place, at);
        return point ? std::optional(axis_.at(*point)) : std::nullopt;
    }
    QString tip(const QRectF& place, QPointF at) const override {
        const auto point = pointAt(place, at);
        if (!point)
            return {};
        return words(timeText(axis_.at(*point)) + "  " + loadText(channel_.value(channel_.loads[*point])) +
                     " " + std::string(unitName(channel_.unit)));
    }

private:
    // Only a map that is looked at is filled.
    void fill() const {
        image_ = QImage(days_, rows_, QImage::Format_ARGB32);
        image_.fill(Qt::transparent);
        auto* pixels = reinterpret_cast<QRgb*>(image_.bits());
        for (std::size_t point = 0; point < axis_.points; ++point) {
            const ReadingTime time = axis_.at(point);
            const double value = channel_.value(channel_.loads[point]);
            // Midnight stands below.
            const int row = rows_ - 1 - minuteOfDay(time) / axis_.interval;
            pixels[row * days_ + int(dayOf(time) - firstDay_)] =
                heatColour(maximum_ > minimum_ ? (value - minimum_) / (maximum_ - minimum_) : 0);
        }
    }
    // The point of the cell under a place; nothing off the map and in a cell without a reading.
    std::optional<std::size_t> pointAt(const QRectF& place, QPointF at) const {
        const QRectF box = box_.translated(place.topLeft());
        if (!box.contains(at))
            return {};
        const auto day = std::int64_t((at.x() - box.left()) / box.width() * days_);
        const auto slot = std::int64_t((box.bottom() - at.y()) / box.height() * rows_);
        const std::int64_t offset = minuteOfDay(axis_.start) % axis_.interval;
        const std::int64_t minutes = (firstDay_ + day) * minutesPerDay + slot * axis_.interval + offset;
        const std::int64_t point = (minutes - axis_.start.minutes) / axis_.interval;
        if (minutes < axis_.start.minutes || point >= std::int64_t(axis_.points))
            return {};
        return std::size_t(point);
    }

    const Axis& axis_;
    const Channel& channel_;
    double minimum_;
    double maximum_;
    std::int64_t firstDay_;
    int days_;
    int rows_; // slots of a day
    mutable QImage image_;
    mutable QRectF box_; // where the map was drawn last, from the left upper corner of its place
};

} // namespace

std::unique_ptr<Block> typicalDaysPlot(const Study& study, std::size_t channel) {
    return std::make_unique<TypicalDaysPlot>(study, channel);
}

std::unique_ptr<Block> heatMap(const Study& study, std::size_t channel) {
    return std::make_unique<HeatMap>(study, channel);
}

} // namespace tally::study
