// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/RecordingTable.h"

#include "view/forms/ChartLook.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace tally::archive {

namespace {

constexpr int rowPixels = 30;
constexpr double margin = 3;

// Draws a recording column by column, from its lowest (at most 0) to its highest value.
class SparkDelegate : public QStyledItemDelegate {
public:
    SparkDelegate(const RecordingModel& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const Spark* spark = model_.spark(index.row());
        if (!spark || spark->columns.empty())
            return;
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        const ChartLook look = ChartLook::onScreen(option.palette, rowPixels);
        painter->setPen(chosen ? option.palette.highlightedText().color() : look.line(0));
        const QRectF box = QRectF(option.rect).adjusted(margin, margin, -margin, -margin);
        const double span = std::max(1, spark->highest - spark->lowest);
        const auto y = [&](int value) {
            return box.bottom() - (value - spark->lowest) / span * box.height();
        };
        const double step = box.width() / double(spark->columns.size());
        QPolygonF line;
        for (std::size_t at = 0; at < spark->columns.size(); ++at) {
            const double x = box.left() + double(at) * step;
            line << QPointF(x, y(spark->columns[at].low)) << QPointF(x, y(spark->columns[at].high));
        }
        painter->drawPolyline(line);
    }

private:
    const RecordingModel& model_;
};

} // namespace

RecordingTable::RecordingTable(QWidget* parent) : QTableView(parent), model_(new RecordingModel(this)) {
    setObjectName(QStringLiteral("recordings"));
    setAccessibleName(QStringLiteral("Recordings"));
    setModel(model_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setItemDelegateForColumn(RecordingModel::picture, new SparkDelegate(*model_, this));
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(rowPixels);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    constexpr int widths[] = {180, 160, 60, 125, 125, 75, 85, pictureWidth};
    for (int column = 0; column < int(std::size(widths)); ++column)
        setColumnWidth(column, widths[column]);
}

std::vector<Entry> RecordingTable::selected() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    std::vector<Entry> entries;
    for (const int row : rows)
        entries.push_back(model_->entry(row));
    return entries;
}

std::vector<Entry> RecordingTable::withoutPicture() const {
    std::vector<Entry> entries;
    const int first = std::max(rowAt(0), 0);
    const int seen = rowAt(viewport()->height() - 1);
    const int last = seen < 0 ? model_->rowCount() - 1 : seen;
    for (int row = first; row <= last; ++row)
        if (!model_->spark(row))
            entries.push_back(model_->entry(row));
    return entries;
}

void RecordingTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT selectionChangedTo(int(selectionModel()->selectedRows().size()));
}

void RecordingTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    Q_EMIT scrolled();
}

void RecordingTable::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    Q_EMIT scrolled();
}

} // namespace tally::archive
