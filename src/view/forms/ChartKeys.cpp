// SPDX-License-Identifier: GPL-3.0-or-later
// What the keys do on the chart.
#include "view/PointReadings.h"
#include "view/forms/Chart.h"
#include "view/forms/PlotScene.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double panStep = 0.1; // of what is in sight

} // namespace

void Chart::keyPressEvent(QKeyEvent* event) {
    if (!shown_) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (noteKey(*event) || arrowKey(*event) || pictureKey(*event))
        return;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT zoomWanted();
        return;
    case Qt::Key_Escape:
        return leave();
    default:
        QWidget::keyPressEvent(event);
    }
}

// Left and right go from reading to reading, with Shift they mark, with Ctrl they move the picture.
bool Chart::arrowKey(const QKeyEvent& event) {
    const bool left = event.key() == Qt::Key_Left || event.key() == Qt::Key_PageUp;
    const bool right = event.key() == Qt::Key_Right || event.key() == Qt::Key_PageDown;
    if (!left && !right)
        return false;
    const bool far = event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
    if (!far && event.modifiers().testFlag(Qt::ControlModifier)) {
        pan(left ? -panStep : panStep, 0);
        return true;
    }
    const auto [from, to] = scene_->across();
    const int steps = far ? std::max(int((to - from) * panStep), 1) : 1;
    stepCursor(left ? -steps : steps, event.modifiers().testFlag(Qt::ShiftModifier));
    return true;
}

bool Chart::pictureKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        return true;
    case Qt::Key_Minus:
        zoomOut();
        return true;
    case Qt::Key_Up:
        pan(0, panStep);
        return true;
    case Qt::Key_Down:
        pan(0, -panStep);
        return true;
    case Qt::Key_Home:
        resetView();
        return true;
    default:
        return false;
    }
}

void Chart::stepCursor(int steps, bool marking) {
    const int points = scene_->plot().points;
    if (!shown_ || points == 0 || scene_->plot().series.empty())
        return;
    const auto [from, to] = scene_->across();
    int point =
        cursor_ ? cursor_->point
                : std::clamp(int(std::lround((from + std::min(to, double(points - 1))) / 2)), 0, points - 1);
    int series = cursor_ ? cursor_->series : 0;
    for (int other = 0; scene_->lines.isHidden(series) && other < int(scene_->plot().series.size()); ++other)
        series = other;
    if (!marking)
        anchor_ = -1;
    else if (anchor_ < 0)
        anchor_ = point;
    if (cursor_ || marking)
        point = std::clamp(point + steps, 0, points - 1);
    scene_->reveal(point);
    refresh();
    byKeys_ = true;
    cursor_ = Cursor{point, series, {}};
    if (marking) {
        markSpan(anchor_, point);
        marking_ = true;
        Q_EMIT spanStarted(anchor_);
        Q_EMIT spanEnded(point);
        marking_ = false;
    }
    pointAgain();
    setAccessibleDescription(QString::fromStdString((pointTime_ ? pointTime_(point) + " " : std::string()) +
                                                    pointLine(scene_->plot(), point)));
}

void Chart::leave() {
    if (drag_ == Drag::span || drag_ == Drag::box || boxMode_) {
        const bool span = std::exchange(drag_, Drag::none) == Drag::span;
        unsetCursor();
        setBoxMode(false);
        return span ? clearSpan() : update(); // the mark is given up
    }
    if (byKeys_ || scene_->span) {
        const bool marked = scene_->span.has_value();
        byKeys_ = false;
        anchor_ = -1;
        pointAgain();
        clearSpan();
        if (marked)
            Q_EMIT spanLeft();
        return;
    }
    if (!scene_->isWhole())
        return resetView();
    Q_EMIT leaveWanted();
}

} // namespace tally
