// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QString>

class QPainter;

namespace tally {

class PlotScene;

// What the pointer or the keys point at.
struct Cursor {
    int point = 0;
    int series = 0; // of the reading that is told in the status bar
    QPointF place;  // of the pointer; where its reading stands, by keys
};

// Draws a thin cross through the cursor, a mark on each line that has a reading there, and a box that names
// all of them with the time.
void paintCursor(QPainter& painter, const PlotScene& scene, const Cursor& cursor, const QString& time);

} // namespace tally
