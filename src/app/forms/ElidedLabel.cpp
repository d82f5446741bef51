// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/ElidedLabel.h"

#include <QEvent>
#include <QPainter>

namespace tally {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

// No width of its own: a line of buttons drops what wants more than is left.
QSize ElidedLabel::sizeHint() const {
    return {0, QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    return sizeHint();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const bool whole = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
        setToolTip(whole ? QString() : text());
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QRect room = contentsRect();
    const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    painter.drawText(room, int(alignment()) | int(Qt::TextSingleLine), line);
}

} // namespace tally
