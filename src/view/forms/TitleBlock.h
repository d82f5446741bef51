// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRectF>
#include <QStringList>

#include <vector>

class QPainter;

namespace tally {

// The lines above a plot. They stand in as many columns as the width allows, so that the notes of several
// files leave room for the plot; a line that is too long is broken, never cut.
class TitleBlock {
public:
    // Lines joined by CR LF, CR or LF.
    void setText(const QString& text);
    bool isEmpty() const { return lines_.isEmpty(); }
    // Finds a place for every line within the width; gives the height that it takes.
    int layOut(int width, const QFont& font);
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

    void group();
    bool fits(const Group& group, int width) const;
    // Places a group and gives the height that it takes.
    int place(const Group& group, int left, int top, int width, std::vector<Placed>& placed) const;
    int placeAll(int columns, int width, std::vector<Placed>& placed) const;

    QStringList lines_;
    Group head_{0, 0};
    std::vector<Group> files_; // the notes of each file
    Group tail_{0, 0};         // the marked span
    std::vector<Placed> placed_;
    QFont font_;
};

} // namespace tally
