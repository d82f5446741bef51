// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/forms/Paper.h"

#include <QFont>
#include <QRectF>
#include <QStringList>

#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace tally {

// A piece of a line that is drawn as a whole, and the columns that it covers.
struct TextField {
    int first = 0; // column, counted in characters
    QString text;
    bool number = false; // stands at its right border
};

// The fields of a line: what two or more blanks set apart.
std::vector<TextField> fieldsOf(const QString& line);

// Lays a report out on pages of a device and draws them.
class PaperText {
public:
    PaperText(const TextReport& report, const QPagedPaintDevice& device);

    int pages() const { return int(pages_.size()); }
    void paint(QPainter& painter, int page) const;

private:
    struct Lines {
        qsizetype first;
        qsizetype count;
    };

    void breakPages();
    void paintLine(QPainter& painter, const QString& line, double top) const;
    void paintFooter(QPainter& painter, int page) const;

    QStringList title_;
    QStringList heading_;
    QStringList lines_;
    QString user_;
    QString date_;
    std::vector<Lines> pages_;
    QFont font_;
    QRectF page_;
    double cell_ = 0;       // width of a column
    double lineHeight_ = 0; // device units, as all here
};

} // namespace tally
