// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Report.h"
#include "study/forms/ColumnLine.h"
#include "study/forms/PlotBlocks.h"
#include "study/forms/TimePlot.h"

#include <algorithm>

namespace tally::study {

namespace {

class LimitPlot : public TimePlot {
public:
    LimitPlot(const Study& study, std::size_t channel)
        : TimePlot(study.axis),
          study_(study),
          channel_(study.channels[channel]),
          figures_(study.figures[channel]) {}

    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        double minimum = figures_.level.min.value;
        double maximum = figures_.level.max.value;
        for (const auto& limit : {study_.options.high, study_.options.low})
            if (limit) {
                minimum = std::min(minimum, limit->value);
                maximum = std::max(maximum, limit->value);
            }
        const PlotFrame frame = frameIn(place, look, minimum, maximum);
        frame.paint(painter, look, words(channel_.name) + QStringLiteral(": load over time"),
                    words(unitName(channel_.unit)));
        paintTimes(painter, look, frame);
        painter.setPen(look.line(0));
        paintColumns(painter, frame, study_.axis.points, [this](std::size_t point) {
            return std::optional(channel_.value(channel_.loads[point]));
        });
        paintLimit(painter, look, frame, study_.options.high, figures_.limits.above, channel_.highs());
        paintLimit(painter, look, frame, study_.options.low, figures_.limits.below, channel_.lows());
    }

protected:
    QString valueText(std::size_t point) const override {
        return words(loadText(channel_.value(channel_.loads[point]))) + QStringLiteral(" ") +
               words(unitName(channel_.unit));
    }

private:
    void paintLimit(QPainter& painter, const ChartLook& look, const PlotFrame& frame,
                    const std::optional<Decimal>& limit, const std::vector<Run>& runs,
                    const std::vector<std::int32_t>& loads) const {
        if (!limit || channel_.isPower())
            return;
        painter.setPen(QPen(look.line(1), 1, Qt::DashLine));
        const double y = frame.y(limit->value);
        painter.drawLine(QPointF(frame.box.left(), y), QPointF(frame.box.right(), y));
        painter.setPen(QPen(look.line(1), 1));
        std::vector<bool> marked(study_.axis.points);
        for (const Run& run : runs) {
            const auto first =
                std::size_t((run.start.minutes - study_.axis.start.minutes) / study_.axis.interval);
            std::fill_n(marked.begin() + std::ptrdiff_t(first), run.minutes / study_.axis.interval, true);
        }
        paintColumns(painter, frame, study_.axis.points, [&](std::size_t point) {
            return marked[point] ? std::optional(channel_.value(loads[point])) : std::nullopt;
        });
    }

    const Study& study_;
    const Channel& channel_;
    const ChannelFigures& figures_;
};

class UnbalancePlot : public TimePlot {
public:
    explicit UnbalancePlot(const Study& study) : TimePlot(study.axis), phases_(*study.phases) {}

    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        const double maximum = phases_.unbalance.max ? phases_.unbalance.max->value : 1;
        const PlotFrame frame = frameIn(place, look, 0, maximum);
        frame.paint(painter, look, QStringLiteral("Unbalance of the phases"), QStringLiteral("%"));
        paintTimes(painter, look, frame);
        painter.setPen(look.line(0));
        paintColumns(painter, frame, phases_.unbalances.size(),
                     [this](std::size_t point) { return phases_.unbalances[point]; });
    }

protected:
    QString valueText(std::size_t point) const override {
        const auto& value = phases_.unbalances[point];
        return value ? words(loadText(*value)) + QStringLiteral(" %") : QStringLiteral("light load");
    }

private:
    const Phases& phases_;
};

} // namespace

std::unique_ptr<Block> limitPlot(const Study& study, std::size_t channel) {
    return std::make_unique<LimitPlot>(study, channel);
}

std::unique_ptr<Block> unbalancePlot(const Study& study) {
    return std::make_unique<UnbalancePlot>(study);
}

} // namespace tally::study
