// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/forms/RecordingModel.h"

#include <QTableView>

namespace tally::archive {

// The table of recordings, with a small picture of each.
class RecordingTable : public QTableView {
    Q_OBJECT

public:
    // As wide as the picture of a recording is drawn.
    static constexpr int pictureWidth = 140; // pixels

    explicit RecordingTable(QWidget* parent = nullptr);

    RecordingModel& recordings() { return *model_; }
    // Selected rows from the top.
    std::vector<Entry> selected() const;
    // Rows that are seen and have no picture yet.
    std::vector<Entry> withoutPicture() const;

Q_SIGNALS:
    void selectionChangedTo(int count);
    void scrolled(); // other rows are seen

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    RecordingModel* model_;
};

} // namespace tally::archive
