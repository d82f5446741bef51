// SPDX-License-Identifier: GPL-3.0-or-later
// What the mouse does on the chart.
#include "view/forms/Chart.h"
#include "view/forms/PlotScene.h"

#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double zoomStep = 0.8;
constexpr double smallestBox = 4; // pixels; a smaller one was a click

} // namespace

// The point nearest to a place, -1 where the frame or the data end.
int Chart::pointAt(const QPointF& place) const {
    if (!shown_ || !scene_->frame().contains(place))
        return -1;
    const double point = std::round(scene_->pointAtPixel(place.x()));
    return point < 0 || point > scene_->plot().points - 1 ? -1 : int(point);
}

// The point nearest to a place, however far beyond the data it lies.
int Chart::nearestPoint(const QPointF& place) const {
    const double point = std::round(scene_->pointAtPixel(place.x()));
    return int(std::clamp(point, 0.0, double(std::max(scene_->plot().points - 1, 0))));
}

void Chart::mousePressEvent(QMouseEvent* event) {
    if (!shown_ || drag_ != Drag::none)
        return;
    scene_->layOut(size());
    last_ = event->position();
    const bool left = event->button() == Qt::LeftButton;
    if (const int line = scene_->legendAt(last_); left && line >= 0)
        return toggleLine(line);
    if (left)
        pressNote(last_);
    if (drag_ == Drag::note)
        return;
    const Qt::KeyboardModifiers held = event->modifiers();
    const bool inFrame = scene_->frame().contains(last_);
    if (inFrame && left && (boxMode_ || held.testFlag(Qt::ControlModifier))) {
        drag_ = Drag::box;
        box_ = {last_, last_};
        setCursor(Qt::CrossCursor);
    } else if (inFrame && (event->button() == Qt::RightButton || event->button() == Qt::MiddleButton ||
                           (left && held.testFlag(Qt::ShiftModifier)))) {
        drag_ = Drag::pan;
        setCursor(Qt::ClosedHandCursor);
    } else if (left && pointAt(last_) >= 0) {
        drag_ = Drag::span;
        spanFrom_ = pointAt(last_);
        markSpan(spanFrom_, spanFrom_);
        Q_EMIT spanStarted(spanFrom_);
    }
}

void Chart::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = event->position();
    const QPointF before = std::exchange(last_, place);
    if (drag_ == Drag::pan) {
        const QRectF frame = scene_->frame();
        pan((before.x() - place.x()) / std::max(frame.width(), 1.0),
            (place.y() - before.y()) / std::max(frame.height(), 1.0));
    } else if (drag_ == Drag::note) {
        last_ = before;
        moveNote(place);
        last_ = place;
    } else if (drag_ == Drag::box) {
        box_.setBottomRight(place);
        update();
    } else if (drag_ == Drag::span) {
        markSpan(spanFrom_, nearestPoint(place));
    }
    liftLine(drag_ == Drag::none && shown_ ? scene_->legendAt(place) : -1);
    byKeys_ = false;
    anchor_ = -1;
    inside_ = true;
    pointAgain();
}

void Chart::mouseReleaseEvent(QMouseEvent* event) {
    if (drag_ == Drag::box) {
        box_.setBottomRight(event->position());
        return endBox();
    }
    const Drag was = std::exchange(drag_, Drag::none);
    unsetCursor();
    if (was == Drag::note)
        Q_EMIT notesChanged();
    if (was != Drag::span)
        return;
    const int end = nearestPoint(event->position());
    markSpan(spanFrom_, end);
    marking_ = true;
    Q_EMIT spanEnded(end);
    marking_ = false;
}

// What the box holds fills the frame.
void Chart::endBox() {
    drag_ = Drag::none;
    unsetCursor();
    setBoxMode(false);
    const QRectF box = box_.normalized().intersected(scene_->frame());
    if (box.width() >= smallestBox && box.height() >= smallestBox)
        scene_->setView({scene_->pointAtPixel(box.left()), scene_->pointAtPixel(box.right())},
                        {scene_->valueAtPixel(box.bottom()), scene_->valueAtPixel(box.top())});
    refresh();
    pointAgain();
}

void Chart::setBoxMode(bool on) {
    if (std::exchange(boxMode_, on) == on)
        return;
    if (on)
        setCursor(Qt::CrossCursor);
    else
        unsetCursor();
    Q_EMIT boxModeChanged(on);
}

// What is under the pointer, told anew: it moved, or the picture moved under it.
void Chart::pointAgain() {
    if (byKeys_ && cursor_) {
        scene_->layOut(size());
        cursor_->place = scene_->placeOf(cursor_->point, cursor_->series);
        return moveCursor(cursor_);
    }
    scene_->layOut(size());
    const auto hit = shown_ && inside_ ? scene_->hit(last_) : std::nullopt;
    moveCursor(hit ? std::optional(Cursor{hit->point, hit->series, last_}) : std::nullopt);
}

void Chart::moveCursor(std::optional<Cursor> cursor) {
    cursor_ = cursor;
    if (!cursor_)
        byKeys_ = false;
    update();
    Q_EMIT pointerMoved(cursor_ ? cursor_->point : -1, cursor_ ? cursor_->series : 0);
}

void Chart::toggleLine(int series) {
    auto& hidden = scene_->lines.hidden;
    if (series < 0 || series >= int(scene_->plot().series.size()))
        return;
    if (std::erase(hidden, series) == 0)
        hidden.push_back(series);
    refresh();
    Q_EMIT linesChanged();
}

const LinesShown& Chart::lines() const {
    return scene_->lines;
}

void Chart::liftLine(int series) {
    if (scene_->lines.isHidden(series))
        series = -1;
    if (std::exchange(scene_->lines.lifted, series) != series)
        refresh();
}

void Chart::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    liftLine(-1);
    inside_ = false;
    if (!byKeys_)
        moveCursor(std::nullopt);
}

void Chart::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (!shown_ || turned == 0 || !scene_->frame().contains(event->position())) {
        event->ignore();
        return;
    }
    const double factor = std::pow(zoomStep, turned / 120.0); // a notch is 120
    if (event->modifiers().testFlag(Qt::ControlModifier))
        scene_->zoomUp(factor, scene_->valueAtPixel(event->position().y()));
    else
        scene_->zoomAcross(factor, scene_->pointAtPixel(event->position().x()));
    event->accept();
    refresh();
    pointAgain();
}

} // namespace tally
