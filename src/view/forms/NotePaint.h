// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/forms/ChartLook.h"
#include "view/forms/ChartNote.h"

#include <QRectF>

class QPainter;

namespace tally {

// Where a note stands on a frame: no wider than half of it, and within it.
QRectF notePlace(const ChartNote& note, const QRectF& frame, const QFont& font);
void paintNote(QPainter& painter, const ChartNote& note, const QRectF& frame, const ChartLook& look,
               bool selected);

} // namespace tally
