// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/TextBlocks.h"

#include <QFontMetricsF>

#include <algorithm>

namespace tally::study {

namespace {

constexpr double between = 14; // pixels between two columns

QFont strong(QFont font, double larger = 1) {
    font.setBold(true);
    font.setPixelSize(int(font.pixelSize() * larger));
    return font;
}

class HeadingBlock : public Block {
public:
    HeadingBlock(QString text, const QFont& font, double above)
        : text_(std::move(text)), font_(font), above_(above) {}

    double height(double) const override { return above_ + QFontMetricsF(font_).height() * 1.3; }
    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        painter.setFont(font_);
        painter.setPen(look.text);
        painter.drawText(place.adjusted(0, above_, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text_);
    }
    bool staysWithNext() const override { return true; }

private:
    QString text_;
    QFont font_;
    double above_;
};

class ParagraphBlock : public Block {
public:
    ParagraphBlock(QString text, const QFont& font) : text_(std::move(text)), font_(font) {}

    double height(double width) const override {
        return QFontMetricsF(font_).boundingRect(QRectF(0, 0, width, 1e6), flags, text_).height() + 4;
    }
    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        painter.setFont(font_);
        painter.setPen(look.text);
        painter.drawText(place, flags, text_);
    }

private:
    static constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    QString text_;
    QFont font_;
};

// What the rows of one table share: where its columns stand.
struct Columns {
    QFont font;
    std::vector<double> widths;

    double lineHeight() const { return QFontMetricsF(font).height() * 1.15; }
    // A table that is too wide is drawn narrower.
    double narrowing(double width) const {
        double all = -between;
        for (const double one : widths)
            all += one + between;
        return std::min(width / all, 1.0);
    }
};

class RowBlock : public Block {
public:
    RowBlock(std::vector<ReportCell> cells, bool isHeading, std::shared_ptr<const Columns> columns)
        : cells_(std::move(cells)), isHeading_(isHeading), columns_(std::move(columns)) {}

    double height(double width) const override { return columns_->lineHeight() * columns_->narrowing(width); }
    void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const override {
        painter.save();
        painter.translate(place.topLeft());
        const double scale = columns_->narrowing(place.width());
        painter.scale(scale, scale);
        painter.setFont(isHeading_ ? strong(columns_->font) : columns_->font);
        painter.setPen(look.text);
        double left = 0;
        for (std::size_t i = 0; i < cells_.size(); ++i) {
            const QRectF cell(left, 0, columns_->widths[i], columns_->lineHeight());
            painter.drawText(cell, (i == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter,
                             words(cells_[i].text));
            left += columns_->widths[i] + between;
        }
        painter.restore();
    }
    std::optional<ReadingTime> timeAt(const QRectF& place, QPointF at) const override {
        const double scale = columns_->narrowing(place.width());
        double right = place.left();
        for (std::size_t i = 0; i < cells_.size(); ++i) {
            right += (columns_->widths[i] + between) * scale;
            if (at.x() < right)
                return cells_[i].at;
        }
        return {};
    }
    bool staysWithNext() const override { return isHeading_; }

private:
    std::vector<ReportCell> cells_;
    bool isHeading_;
    std::shared_ptr<const Columns> columns_;
};

std::shared_ptr<const Columns> columnsOf(const ReportTable& table, const QFont& font) {
    auto columns = std::make_shared<Columns>();
    columns->font = font;
    const QFontMetricsF bold(strong(font));
    const QFontMetricsF plain(font);
    for (std::size_t i = 0; i < table.headings.size(); ++i) {
        double width = bold.horizontalAdvance(words(table.headings[i]));
        for (const auto& row : table.rows)
            if (i < row.size())
                width = std::max(width, plain.horizontalAdvance(words(row[i].text)));
        columns->widths.push_back(width + 2);
    }
    return columns;
}

} // namespace

void addSection(BlockList& blocks, const ReportSection& section, const QFont& font) {
    const bool first = section.part == Part::basis;
    blocks.push_back(std::make_unique<HeadingBlock>(words(section.title), strong(font, first ? 1.6 : 1.25),
                                                    first ? 0 : font.pixelSize()));
    for (const std::string& line : section.lines)
        blocks.push_back(std::make_unique<ParagraphBlock>(words(line), font));
    if (section.table.rows.empty())
        return;
    const auto columns = columnsOf(section.table, font);
    std::vector<ReportCell> headings;
    for (const std::string& heading : section.table.headings)
        headings.push_back({heading});
    blocks.push_back(std::make_unique<RowBlock>(std::move(headings), true, columns));
    for (const auto& row : section.table.rows)
        blocks.push_back(std::make_unique<RowBlock>(row, false, columns));
}

} // namespace tally::study
