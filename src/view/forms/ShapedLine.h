// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextLayout>

class QPainter;
class QWidget;

namespace tally {

// One line of text as a widget's font sets it, on that widget's screen: the places of its letters are those
// at which it is drawn, whatever the font and the scale of the screen.
class ShapedLine {
public:
    ShapedLine(const QString& text, const QWidget& widget);

    double width() const { return line_.naturalTextWidth(); }
    // Where the gap before a character stands, in pixels from the start of the line.
    double xOf(int gap) const { return line_.cursorToX(gap); }
    int nearestGap(double x) const { return line_.xToCursor(x); }
    // Draws the line below a place, in the painter's pen.
    void draw(QPainter& painter, const QPointF& topLeft) const;

private:
    QTextLayout layout_;
    QTextLine line_;
};

// Whether a text holds nothing but characters that a font of one width sets at that width, and line breaks.
bool isPlain(QStringView text);

} // namespace tally
