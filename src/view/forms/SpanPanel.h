// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QTableWidget;

namespace tally {

// The figures of the marked span beside the plot, "SpanPanel": a title, a table with a column a line, remarks
// and a button that copies all of it.
class SpanPanel : public QWidget {
    Q_OBJECT

public:
    explicit SpanPanel(QWidget* parent = nullptr);

    // `text` is what Copy puts on the clipboard.
    void showFigures(const std::string& title, const std::vector<std::vector<std::string>>& rows,
                     const std::vector<std::string>& remarks, const std::string& text);
    void copy() const;
    void fitColumns();

    QSize sizeHint() const override { return {330, 400}; }

Q_SIGNALS:
    void closeWanted();

private:
    QLabel* title_;
    QTableWidget* table_;
    QLabel* remarks_;
    QString text_;
};

} // namespace tally
