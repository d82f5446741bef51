// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/NotePaint.h"

#include "view/forms/TextWrap.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace tally {
namespace {

constexpr int padding = 5;

} // namespace

QRectF notePlace(const ChartNote& note, const QRectF& frame, const QFont& font) {
    const QFontMetrics metrics(font);
    const int widest = std::max(int(frame.width() / 2), 8 * metrics.averageCharWidth());
    const QRect room(0, 0, widest, 1 << 20);
    const QString words = QString::fromStdString(note.text);
    const QRect text = metrics.boundingRect(room, wrapFlags(words, widest, metrics), words);
    const double width =
        std::max(text.width() + metrics.averageCharWidth(), 2 * metrics.averageCharWidth()) + 2 * padding;
    const double height = std::max(text.height(), metrics.height()) + 2 * padding;
    const double x = frame.left() + note.x * frame.width();
    const double y = frame.top() + note.y * frame.height();
    return QRectF(std::max(std::min(x, frame.right() - width), frame.left()),
                  std::max(std::min(y, frame.bottom() - height), frame.top()), width, height);
}

void paintNote(QPainter& painter, const ChartNote& note, const QRectF& frame, const ChartLook& look,
               bool selected) {
    const QRectF place = notePlace(note, frame, look.font);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.noteEdge, selected ? 2.5 : 1, selected ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(look.note);
    painter.drawRoundedRect(place, 3, 3);
    painter.setPen(look.text);
    painter.setFont(look.font);
    const QRectF room = place.adjusted(padding, padding, 0, -padding);
    const QString words = QString::fromStdString(note.text);
    painter.drawText(room, wrapFlags(words, int(room.width()), QFontMetrics(look.font)), words);
    painter.restore();
}

} // namespace tally
