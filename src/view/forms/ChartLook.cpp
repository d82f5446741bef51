// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartLook.h"

#include <QPalette>

namespace tally {
namespace {

QFont letters(int pixels) {
    QFont font(QStringLiteral("arial"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels); // points would grow with the resolution of a printer
    return font;
}

} // namespace

QColor ChartLook::line(Phase phase, int index) const {
    return phase == Phase::none ? line(index) : phases[std::size_t(phase) - 1];
}

QList<qreal> ChartLook::dashes(Phase phase) {
    if (phase == Phase::white)
        return {7, 3};
    return phase == Phase::blue ? QList<qreal>{8, 3, 1.5, 3} : QList<qreal>();
}

ChartLook ChartLook::onPaper(int pixels) {
    return {.paper = Qt::white,
            .text = Qt::black,
            .frame = QColor(90, 90, 90),
            .grid = QColor(210, 210, 210),
            .lines = {QColor(0, 100, 170), QColor(200, 75, 0), QColor(0, 130, 95), QColor(95, 75, 20)},
            .phases = {QColor(200, 20, 30), QColor(125, 125, 125), QColor(10, 40, 150)},
            .limit = QColor(150, 0, 0),
            .forced = QColor(190, 0, 140),
            .span = QColor(90, 140, 220, 60),
            .note = QColor(255, 251, 220),
            .noteEdge = QColor(120, 105, 20),
            .font = letters(pixels)};
}

ChartLook ChartLook::onScreen(const QPalette& palette, int pixels) {
    ChartLook look = onPaper(pixels);
    const QColor paper = palette.color(QPalette::Base);
    if (paper.lightness() >= 128)
        return look;
    look.paper = paper;
    look.text = palette.color(QPalette::Text);
    look.frame = QColor(170, 170, 170);
    look.grid = QColor(210, 210, 210, 70); // the same grey, let through by the dark ground
    look.lines = {QColor(95, 185, 255), QColor(255, 165, 60), QColor(70, 215, 165), QColor(240, 228, 66)};
    look.phases = {QColor(255, 105, 105), QColor(245, 245, 245), QColor(95, 150, 255)};
    look.limit = QColor(255, 150, 130);
    look.forced = QColor(255, 120, 225);
    look.span = QColor(120, 170, 255, 70);
    look.note = QColor(70, 64, 30);
    look.noteEdge = QColor(230, 210, 120);
    return look;
}

} // namespace tally
