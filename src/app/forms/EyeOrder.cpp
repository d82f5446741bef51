// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/EyeOrder.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QWidget>
#include <algorithm>

namespace tally {

namespace {

// Half of the lower one beside the other: they stand on one line.
bool onOneLine(const QRect& a, const QRect& b) {
    const int together = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top()) + 1;
    return 2 * together > std::min(a.height(), b.height());
}

// The next of those that are left: the leftmost one on the line of the highest.
qsizetype next(const QList<QWidget*>& left) {
    qsizetype highest = 0;
    for (qsizetype i = 1; i < left.size(); ++i)
        if (left[i]->y() < left[highest]->y())
            highest = i;
    const QRect line = left[highest]->geometry();
    qsizetype found = highest;
    for (qsizetype i = 0; i < left.size(); ++i) {
        const QRect place = left[i]->geometry();
        const QRect best = left[found]->geometry();
        if (onOneLine(place, line) &&
            (place.x() < best.x() || (place.x() == best.x() && place.y() < best.y())))
            found = i;
    }
    return found;
}

void collect(const QWidget& parent, QList<QWidget*>& order) {
    QList<QWidget*> left;
    for (QObject* const child : parent.children()) {
        auto* const widget = qobject_cast<QWidget*>(child);
        if (widget && !widget->isWindow() && !widget->isHidden())
            left.append(widget);
    }
    while (!left.isEmpty()) {
        QWidget* const widget = left.takeAt(next(left));
        if (widget->focusPolicy() & Qt::TabFocus)
            order.append(widget);
        // Parts of a control have an order of their own.
        if (!(widget->focusPolicy() & Qt::TabFocus) || widget->layout())
            collect(*widget, order);
    }
}

} // namespace

QList<QWidget*> inEyeOrder(const QWidget& window) {
    QList<QWidget*> order;
    collect(window, order);
    return order;
}

bool EyeOrder::eventFilter(QObject* watched, QEvent* event) {
    auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (!dialog)
        return false;
    if (dialog->layout())
        dialog->layout()->activate();
    const QList<QWidget*> order = inEyeOrder(*dialog);
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    return false;
}

} // namespace tally
