// SPDX-License-Identifier: GPL-3.0-or-later
// What mouse and keyboard do on the chart.
#include "view/forms/Chart.h"
#include "view/forms/PlotScene.h"

#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double zoomStep = 0.8;
constexpr double panStep = 0.1;

} // namespace

// The point nearest to a place, -1 where the frame or the data end.
int Chart::pointAt(const QPointF& place) const {
    if (!shown_ || !scene_->frame().contains(place))
        return -1;
    const double point = std::round(scene_->pointAtPixel(place.x()));
    return point < 0 || point > scene_->plot().points - 1 ? -1 : int(point);
}

void Chart::mousePressEvent(QMouseEvent* event) {
    if (!shown_ || drag_ != Drag::none)
        return;
    scene_->layOut(size());
    last_ = event->position();
    const bool left = event->button() == Qt::LeftButton;
    if (left)
        pressNote(last_);
    if (drag_ == Drag::note)
        return;
    const bool inFrame = scene_->frame().contains(last_);
    if (inFrame &&
        (event->button() == Qt::RightButton || (left && event->modifiers().testFlag(Qt::ShiftModifier)))) {
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
    if (drag_ == Drag::pan) {
        const QRectF frame = scene_->frame();
        pan((last_.x() - place.x()) / std::max(frame.width(), 1.0),
            (place.y() - last_.y()) / std::max(frame.height(), 1.0));
    } else if (drag_ == Drag::note) {
        moveNote(place);
    } else if (drag_ == Drag::span) {
        markSpan(spanFrom_, nearestPoint(place));
    }
    last_ = place;
    Q_EMIT pointerMoved(pointAt(place));
}

void Chart::mouseReleaseEvent(QMouseEvent* event) {
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

void Chart::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    Q_EMIT pointerMoved(-1);
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
    update();
}

void Chart::keyPressEvent(QKeyEvent* event) {
    if (!shown_) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (noteKey(*event))
        return;
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Left:
        return pan(-panStep, 0);
    case Qt::Key_Right:
        return pan(panStep, 0);
    case Qt::Key_Up:
        return pan(0, panStep);
    case Qt::Key_Down:
        return pan(0, -panStep);
    case Qt::Key_Home:
        return resetView();
    case Qt::Key_Escape:
        if (drag_ == Drag::span) { // the mark is given up
            drag_ = Drag::none;
            return clearSpan();
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

// The point nearest to a place, however far beyond the data it lies.
int Chart::nearestPoint(const QPointF& place) const {
    const double point = std::round(scene_->pointAtPixel(place.x()));
    return int(std::clamp(point, 0.0, double(std::max(scene_->plot().points - 1, 0))));
}

} // namespace tally
