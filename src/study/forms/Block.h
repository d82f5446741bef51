// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"
#include "view/forms/ChartLook.h"

#include <QPainter>
#include <QRectF>
#include <QString>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tally::study {

// UTF-8 as text of the window.
inline QString words(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

// A piece of the page of a study: it knows its height at a width, paints itself and tells which time a place
// on it stands for. All in pixels of a page of normal size; paper is scaled.
class Block {
public:
    Block() = default;
    virtual ~Block() = default;
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    virtual double height(double width) const = 0;
    virtual void paint(QPainter& painter, const QRectF& place, const ChartLook& look) const = 0;
    virtual std::optional<ReadingTime> timeAt(const QRectF&, QPointF) const { return {}; }
    // What a place says when the pointer rests on it; may be empty.
    virtual QString tip(const QRectF&, QPointF) const { return {}; }
    // A heading stays with what comes after it.
    virtual bool staysWithNext() const { return false; }
};

using BlockList = std::vector<std::unique_ptr<Block>>;

} // namespace tally::study
