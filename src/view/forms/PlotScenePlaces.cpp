// SPDX-License-Identifier: GPL-3.0-or-later
// What stands at a place of the picture, and where a reading stands.
#include "view/forms/PlotScene.h"

#include <algorithm>
#include <cmath>

namespace tally {

void PlotScene::reveal(int point) {
    const double length = across_.second - across_.first;
    if (point < across_.first)
        setView({point, point + length}, up_);
    else if (point > across_.second)
        setView({point - length, point}, up_);
}

double PlotScene::pointAtPixel(double x) const {
    const double width = std::max(frame_.width(), 1.0);
    return across_.first + (x - frame_.left()) / width * (across_.second - across_.first);
}

double PlotScene::valueAtPixel(double y) const {
    const double height = std::max(frame_.height(), 1.0);
    return up_.first + (frame_.bottom() - y) / height * (up_.second - up_.first);
}

QPointF PlotScene::placeOf(int point, int series) const {
    const PlotSeries& line = plot_.series[std::size_t(series)];
    const Along along = series_->along();
    return {along.origin + point * along.step, series_->pixelOf(line.values[std::size_t(point)], line.axis)};
}

// Where several readings share a column of pixels the nearest of them counts, else the one nearest in time.
std::optional<PlotHit> PlotScene::hit(const QPointF& place) const {
    const Along along = series_->along();
    if (!frame_.contains(place) || !(along.step > 0))
        return std::nullopt;
    const double reach = std::max(along.step / 2, along.step < 0.5 ? 1.5 : 0.5);
    const int from = std::max(int(std::ceil((place.x() - reach - along.origin) / along.step)), 0);
    const int to =
        std::min(int(std::floor((place.x() + reach - along.origin) / along.step)), plot_.points - 1);
    std::optional<PlotHit> found;
    double nearest = 0;
    for (int series = 0; series < int(plot_.series.size()); ++series) {
        const PlotSeries& line = plot_.series[std::size_t(series)];
        if (lines.isHidden(series))
            continue;
        for (int point = from; point <= std::min(to, int(line.values.size()) - 1); ++point) {
            if (!line.has(point) || !std::isfinite(line.values[std::size_t(point)]))
                continue;
            const QPointF away = placeOf(point, series) - place;
            const double distance = QPointF::dotProduct(away, away);
            if (!found || distance < nearest) {
                found = {point, series};
                nearest = distance;
            }
        }
    }
    return found;
}

int PlotScene::legendAt(const QPointF& place) const {
    return legend_.seriesAt(place - QPointF(sceneMargin, legendTop_));
}

} // namespace tally
