// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/StudySheet.h"

#include "study/Report.h"
#include "study/forms/PlotBlocks.h"
#include "study/forms/TextBlocks.h"

#include <algorithm>

namespace tally::study {

StudySheet::StudySheet(const Study& study, const QFont& font) {
    for (ReportSection& section : reportOf(study)) {
        // The plots of the typical days say more than a table of all hours.
        if (section.part == Part::days) {
            section.table.rows.clear();
            section.lines.front() = "Line: mean. Band: 10th to 90th percentile.";
        }
        addSection(blocks_, section, font);
        addPlots(study, section.part);
    }
    layOut(700);
}

void StudySheet::addPlots(const Study& study, Part part) {
    if (part == Part::demand)
        for (std::size_t i = 0; i < study.channels.size(); ++i)
            blocks_.push_back(limitPlot(study, i));
    if (part == Part::duration) {
        blocks_.push_back(durationPlot(study, false));
        if (study.channels.size() > study.files)
            blocks_.push_back(durationPlot(study, true));
    }
    if (part == Part::days)
        for (std::size_t i = 0; i < study.channels.size(); ++i) {
            blocks_.push_back(typicalDaysPlot(study, i));
            blocks_.push_back(heatMap(study, i));
        }
    if (part == Part::phases)
        blocks_.push_back(unbalancePlot(study));
}

void StudySheet::layOut(double width) {
    width_ = width;
    tops_ = {0};
    for (const auto& block : blocks_)
        tops_.push_back(tops_.back() + block->height(width));
}

double StudySheet::height() const {
    return tops_.back();
}

QRectF StudySheet::placeOf(std::size_t block) const {
    return {0, tops_[block], width_, tops_[block + 1] - tops_[block]};
}

std::size_t StudySheet::blockAt(double y) const {
    const auto above = std::upper_bound(tops_.begin(), tops_.end(), y);
    const auto count = above - tops_.begin();
    return std::min(std::size_t(std::max<std::ptrdiff_t>(count - 1, 0)), blocks_.size() - 1);
}

void StudySheet::paint(QPainter& painter, const QRectF& part, const ChartLook& look) const {
    for (std::size_t block = blockAt(part.top()); block < blocks_.size() && tops_[block] < part.bottom();
         ++block)
        blocks_[block]->paint(painter, placeOf(block), look);
}

std::optional<ReadingTime> StudySheet::timeAt(QPointF at) const {
    const std::size_t block = blockAt(at.y());
    return placeOf(block).contains(at) ? blocks_[block]->timeAt(placeOf(block), at) : std::nullopt;
}

QString StudySheet::tip(QPointF at) const {
    const std::size_t block = blockAt(at.y());
    return placeOf(block).contains(at) ? blocks_[block]->tip(placeOf(block), at) : QString();
}

std::vector<StudySheet::Page> StudySheet::pages(double height) const {
    std::vector<Page> pages;
    Page page;
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        // What stays together is placed together: headings with the first block after them.
        std::size_t last = block;
        while (last + 1 < blocks_.size() && blocks_[last]->staysWithNext())
            ++last;
        if (tops_[last + 1] - tops_[page.first] > height && block > page.first) {
            page.end = block;
            pages.push_back(page);
            page.first = block;
        }
    }
    page.end = blocks_.size();
    pages.push_back(page);
    return pages;
}

void StudySheet::paintPage(QPainter& painter, const Page& page, const ChartLook& look) const {
    const double top = tops_[page.first];
    for (std::size_t block = page.first; block < page.end; ++block)
        blocks_[block]->paint(painter, placeOf(block).translated(0, -top), look);
}

} // namespace tally::study
