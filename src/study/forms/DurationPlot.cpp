// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/PlotBlocks.h"
#include "study/forms/PlotFrame.h"

#include <algorithm>

namespace tally::study {

namespace {

class DurationPlot : public Block {
public:
    DurationPlot(const Study& study, bool power) : study_(study), power_(power) {}

    double height(double) const override { return 230; }
    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        const std::size_t first = power_ ? study_.files : 0;
        const std::size_t end = power_ ? study_.channels.size() : study_.files;
        double minimum = study_.figures[first].duration.back();
        double maximum = study_.figures[first].duration.front();
        for (std::size_t i = first; i < end; ++i) {
            minimum = std::min(minimum, study_.figures[i].duration.back());
            maximum = std::max(maximum, study_.figures[i].duration.front());
        }
        const auto [from, to] = axisOver(minimum, maximum);
        const PlotFrame frame = {boxIn(place, look), 0, 100, from, to};
        frame.paint(painter, look, QStringLiteral("Load duration"),
                    words(unitName(study_.channels[first].unit)));
        for (int p = 0; p <= 100; p += 10)
            frame.label(painter, look, p, QStringLiteral("%1 %").arg(p));
        std::vector<std::pair<QString, QColor>> names;
        for (std::size_t i = first; i < end; ++i) {
            const QColor colour = look.line(int(i));
            names.emplace_back(words(study_.channels[i].name), colour);
            painter.setPen(QPen(colour, 1));
            QPolygonF line;
            for (std::size_t p = 0; p < study_.figures[i].duration.size(); ++p)
                line.append(QPointF(frame.x(double(p)), frame.y(study_.figures[i].duration[p])));
            painter.drawPolyline(line);
        }
        paintLegend(painter, look, frame.box, names);
    }

private:
    const Study& study_;
    bool power_;
};

} // namespace

std::unique_ptr<Block> durationPlot(const Study& study, bool power) {
    return std::make_unique<DurationPlot>(study, power);
}

} // namespace tally::study
