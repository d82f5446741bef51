// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/AccessStyle.h"

#include "app/forms/AccessKeys.h"

#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>

namespace tally {

namespace {

// Draws with the caption of a copy of the option changed.
template <class Option, class Draw>
bool drawMarked(const QStyleOption* option, QChar key, Draw draw) {
    const auto* const own = qstyleoption_cast<const Option*>(option);
    if (!own || key.isNull())
        return false;
    Option marked(*own);
    marked.text = withAccessKey(marked.text, key);
    draw(&marked);
    return true;
}

} // namespace

void AccessStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto draw = [&](const QStyleOption* shown) {
        QProxyStyle::drawControl(element, shown, painter, widget);
    };
    const QChar key = widget ? accessKeyOf(*widget) : QChar();
    bool drawn = false;
    if (element == CE_PushButtonLabel || element == CE_RadioButtonLabel || element == CE_CheckBoxLabel)
        drawn = drawMarked<QStyleOptionButton>(option, key, draw);
    else if (element == CE_ToolButtonLabel)
        drawn = drawMarked<QStyleOptionToolButton>(option, key, draw);
    else if (element == CE_MenuItem) {
        const auto* const menu = qobject_cast<const QMenu*>(widget);
        const QAction* const action = menu ? menu->actionAt(option->rect.center()) : nullptr;
        if (action)
            drawn = drawMarked<QStyleOptionMenuItem>(option, accessKeyOf(*action), draw);
    }
    if (!drawn)
        draw(option);
}

// Labels draw their text themselves and hand no widget over: it is what is painted on.
void AccessStyle::drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette,
                               bool enabled, const QString& text, QPalette::ColorRole role) const {
    QPaintDevice* const device = painter->device();
    const auto* const label = device && device->devType() == QInternal::Widget
                                  ? qobject_cast<QLabel*>(static_cast<QWidget*>(device))
                                  : nullptr;
    const QChar key = label && label->text() == text ? accessKeyOf(*label) : QChar();
    if (key.isNull())
        QProxyStyle::drawItemText(painter, place, flags, palette, enabled, text, role);
    else
        QProxyStyle::drawItemText(painter, place, flags | Qt::TextShowMnemonic, palette, enabled,
                                  withAccessKey(text, key), role);
}

} // namespace tally
