// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"
#include "core/forms/Words.h"
#include "view/forms/ChartLook.h"

#include <QPainter>
#include <QRectF>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tally::study {

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
