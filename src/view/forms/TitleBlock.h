// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRectF>
#include <QSize>
#include <QStringList>

#include <vector>

class QPainter;

namespace tally {

// The lines above a plot. Head and notes stand side by side as far as the width allows, so that the notes of
// several files leave room for the plot; a line that is too long is broken, never cut.
class TitleBlock {
public:
    // Lines joined by CR LF, CR or LF.
    void setText(const QString& text);
    bool isEmpty() const { return lines_.isEmpty(); }
    // Finds a place for every line within the width; gives the height that it takes. Where that is more than
    // `height`, the letters shrink, down to `minimumLetters` pixels.
    int layOut(int width, int height, const QFont& font, int minimumLetters);
    // As laid out last, the upper left corner at (left, top).
    void paint(QPainter& painter, int left, int top) const;

private:
    struct Placed {
        QRectF place;
        int line;
    };

    struct Group {
        int first;
        int last; // not included
    };

    // Groups that stand below each other, and the width that they have.
    struct Column {
        std::vector<Group> groups;
        int width;
    };

    void group();
    int widest(const Group& group) const;
    std::vector<Column> columns(const std::vector<Group>& parts, unsigned breaks, int width) const;
    // Places a group and gives the height that it takes.
    int place(const Group& group, int left, int top, int width, std::vector<Placed>& placed) const;
    int placeAll(bool headAbove, unsigned breaks, int width, std::vector<Placed>& placed) const;
    int placeBest(int width);

    QStringList lines_;
    Group head_{0, 0};
    std::vector<Group> files_; // the notes of each file
    Group tail_{0, 0};         // the marked span
    std::vector<int> lengths_; // of the lines in the font, pixels
    std::vector<Placed> placed_;
    QFont font_;
    // What the places were found for.
    QSize room_;
    QFont wanted_;
    int height_ = 0;
};

} // namespace tally
