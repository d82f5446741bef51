// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Report.h"
#include "study/forms/Block.h"

#include <vector>

namespace tally::study {

// A study as a page: its sections and plots below each other, on screen as one strip, on paper cut into
// pages. The study must outlive it.
class StudySheet {
public:
    StudySheet(const Study& study, const QFont& font);

    // Places the blocks for a width in pixels.
    void layOut(double width);
    double height() const;

    // Paints what lies in a part of the sheet.
    void paint(QPainter& painter, const QRectF& part, const ChartLook& look) const;
    std::optional<ReadingTime> timeAt(QPointF at) const;
    QString tip(QPointF at) const;

    // Where pages of a height begin and end, as blocks; a heading never stands alone at the foot.
    struct Page {
        std::size_t first = 0;
        std::size_t end = 0;
    };
    std::vector<Page> pages(double height) const;
    // Paints the blocks of a page from the top.
    void paintPage(QPainter& painter, const Page& page, const ChartLook& look) const;

private:
    void addPlots(const Study& study, Part part);
    QRectF placeOf(std::size_t block) const;
    std::size_t blockAt(double y) const;

    BlockList blocks_;
    std::vector<double> tops_; // of each block, and the height of the whole
    double width_ = 0;
};

} // namespace tally::study
