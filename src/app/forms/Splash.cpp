// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/Splash.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

namespace tally {

namespace {

constexpr QSize splashSize(380, 150);

// A day of load as a line under the name.
void paintCurve(QPainter& painter) {
    QPainterPath curve(QPointF(24, 118));
    curve.cubicTo(90, 126, 110, 84, 160, 92);
    curve.cubicTo(220, 102, 240, 58, 280, 70);
    curve.cubicTo(310, 80, 330, 112, 356, 114);
    painter.setPen(QPen(QColor(0x00, 0x5f, 0xa3), 2));
    painter.drawPath(curve);
}

} // namespace

Splash::Splash() : QSplashScreen(QPixmap(splashSize)) {
    setObjectName(QStringLiteral("Splash"));
}

bool Splash::wanted() {
    return QGuiApplication::platformName() != QStringLiteral("offscreen");
}

void Splash::drawContents(QPainter* painter) {
    painter->fillRect(rect(), Qt::white);
    painter->setRenderHint(QPainter::Antialiasing);
    paintCurve(*painter);
    painter->setPen(QColor(0x20, 0x20, 0x20));
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setBold(true);
    painter->setFont(font);
    painter->drawText(QPoint(24, 48), QStringLiteral("Tallyline"));
    painter->setFont(QApplication::font());
    painter->drawText(QPoint(24, 70), QCoreApplication::applicationVersion());
    painter->drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace tally
