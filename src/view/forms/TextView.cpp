// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TextView.h"

#include "view/forms/FindBar.h"
#include "view/forms/ShapedLine.h"
#include "view/forms/TextViewAccess.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr int margin = 6;

QString oneBreak(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

// The line above the text, moved along with it sideways.
class Heading : public QWidget {
public:
    explicit Heading(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("textHeading"));
        setAutoFillBackground(true);
        setBackgroundRole(QPalette::Window);
    }
    QStringList lines;
    int shift = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        const QFontMetrics metrics(font());
        for (int line = 0; line < lines.size(); ++line)
            ShapedLine(lines[line], *this)
                .draw(painter, {double(margin - shift), margin / 2.0 + line * metrics.lineSpacing()});
    }
};

} // namespace

TextView::TextView(QWidget* parent) : QAbstractScrollArea(parent), starts_{0} {
    TextViewAccess::install();
    setAccessibleName(tr("Text"));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    head_ = new Heading(this);
    head_->hide();
    findBar_ = new FindBar(this);
    findBar_->setFont(QGuiApplication::font());
    findBar_->hide();
    connect(findBar_, &FindBar::wanted, this,
            [this](bool backwards) { findBar_->setFound(find(findBar_->what(), backwards)); });
    connect(findBar_, &FindBar::typed, this, [this] {
        // Letters typed on go on with the place that is selected already.
        const int from = std::min(anchor_, cursor_);
        setSelection(from, from);
        findBar_->setFound(find(findBar_->what()));
    });
    connect(findBar_, &FindBar::closed, this, [this] {
        findBar_->hide();
        layOut();
        setFocus();
    });
}

TextView::~TextView() = default;

void TextView::setText(const QString& heading, const QString& text) {
    heading_ = oneBreak(heading);
    text_ = oneBreak(text);
    starts_.assign(1, 0);
    for (qsizetype at = 0, end = 0; at <= text_.size(); at = end + 1) {
        end = text_.indexOf(u'\n', at);
        if (end < 0)
            end = text_.size();
        if (end + 1 < text_.size()) // what follows the last line break is no line
            starts_.push_back(int(end + 1));
    }
    auto* head = static_cast<Heading*>(head_);
    head->lines = heading_.isEmpty() ? QStringList() : heading_.split(u'\n');
    head->setAccessibleName(heading_);
    anchor_ = cursor_ = 0;
    measure();
    layOut();
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    viewport()->update();
    TextViewAccess::textChanged(*this);
}

QString TextView::lineText(int line) const {
    const int begin = starts_[std::size_t(line)];
    return text_.mid(begin, lineEnd(line) - begin);
}

// In a font of one width a line of letters is as wide as it is long, so that the longest of them is shaped
// alone; what holds other characters is shaped line by line.
double TextView::widestLine() const {
    const bool oneWidth = QFontInfo(font()).fixedPitch();
    const bool letters = oneWidth && isPlain(text_);
    double widest = 0;
    int longest = 0;
    for (int line = 0; line < lineCount(); ++line) {
        const int begin = starts_[std::size_t(line)];
        const int length = lineEnd(line) - begin;
        if (letters || (oneWidth && isPlain(QStringView(text_).mid(begin, length)))) {
            if (length > lineEnd(longest) - starts_[std::size_t(longest)])
                longest = line;
        } else {
            widest = std::max(widest, ShapedLine(lineText(line), *this).width());
        }
    }
    return std::max(widest, ShapedLine(lineText(longest), *this).width());
}

void TextView::measure() {
    widest_ = widestLine();
    for (const QString& line : static_cast<Heading*>(head_)->lines)
        widest_ = std::max(widest_, ShapedLine(line, *this).width());
}

int TextView::lineHeight() const {
    return std::max(QFontMetrics(font()).lineSpacing(), 1);
}

void TextView::layOut() {
    auto* head = static_cast<Heading*>(head_);
    const int above = head->lines.isEmpty() ? 0 : int(head->lines.size()) * lineHeight() + margin;
    const int below = findBar_->isVisibleTo(this) ? findBar_->sizeHint().height() : 0;
    setViewportMargins(0, above, 0, below);
    const QRect room = viewport()->geometry();
    head_->setFont(font());
    head_->setVisible(above > 0);
    head_->setGeometry(room.x(), room.y() - above, room.width(), above);
    findBar_->setGeometry(room.x(), room.bottom() + 1, room.width(), below);
    const int rows = viewport()->height() / lineHeight();
    verticalScrollBar()->setRange(0, std::max(lineCount() - rows, 0));
    verticalScrollBar()->setPageStep(std::max(rows - 1, 1));
    horizontalScrollBar()->setRange(0,
                                    std::max(int(std::ceil(widest_)) + 2 * margin - viewport()->width(), 0));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(QFontMetrics(font()).averageCharWidth() * 4);
}

void TextView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void TextView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && head_) {
        measure();
        layOut();
    }
}

void TextView::scrollContentsBy(int, int) {
    static_cast<Heading*>(head_)->shift = horizontalScrollBar()->value();
    head_->update();
    viewport()->update();
}

int TextView::firstVisibleLine() const {
    return verticalScrollBar()->value();
}

void TextView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    const int height = lineHeight();
    const double left = margin - horizontalScrollBar()->value();
    const auto [from, to] = std::minmax(anchor_, cursor_);
    const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    painter.setPen(palette().color(QPalette::Text));
    for (int line = firstVisibleLine(), top = 0; line < lineCount() && top < viewport()->height();
         ++line, top += height) {
        const int begin = starts_[std::size_t(line)];
        const ShapedLine shaped(lineText(line), *this);
        shaped.draw(painter, QPointF(left, top));
        const int first = std::max(begin, from) - begin;
        const int last = std::min(lineEnd(line), to) - begin;
        if (first >= last)
            continue;
        const double start = left + shaped.xOf(first);
        const QRectF mark(start, top, left + shaped.xOf(last) - start, height);
        painter.save();
        painter.setClipRect(mark);
        painter.fillRect(mark, palette().brush(group, QPalette::Highlight));
        painter.setPen(palette().color(group, QPalette::HighlightedText));
        shaped.draw(painter, QPointF(left, top));
        painter.restore();
    }
    if (hasFocus() && anchor_ == cursor_)
        painter.fillRect(QRectF(characterRect(cursor_).topLeft(), QSizeF(1, height)),
                         palette().color(QPalette::Text));
}

int TextView::lineOf(int position) const {
    return int(std::upper_bound(starts_.begin(), starts_.end(), position) - starts_.begin()) - 1;
}

int TextView::lineEnd(int line) const {
    if (line + 1 < lineCount())
        return starts_[std::size_t(line) + 1] - 1;
    return int(text_.size()) - (text_.endsWith(u'\n') ? 1 : 0);
}

int TextView::at(int line, int column) const {
    line = std::clamp(line, 0, lineCount() - 1);
    return std::clamp(starts_[std::size_t(line)] + std::max(column, 0), starts_[std::size_t(line)],
                      lineEnd(line));
}

QRectF TextView::characterRect(int position) const {
    const int line = lineOf(position);
    const int column = position - starts_[std::size_t(line)];
    const ShapedLine shaped(lineText(line), *this);
    const double x = shaped.xOf(column);
    const double end = column < lineEnd(line) - starts_[std::size_t(line)] ? shaped.xOf(column + 1) : x;
    return {margin - horizontalScrollBar()->value() + x, double(line - firstVisibleLine()) * lineHeight(),
            end - x, double(lineHeight())};
}

int TextView::positionAt(const QPointF& place) const {
    const int line =
        std::clamp(firstVisibleLine() + int(std::floor(place.y() / lineHeight())), 0, lineCount() - 1);
    const double x = place.x() - margin + horizontalScrollBar()->value();
    return starts_[std::size_t(line)] + ShapedLine(lineText(line), *this).nearestGap(x);
}

QString TextView::selectedText() const {
    const auto [from, to] = std::minmax(anchor_, cursor_);
    return text_.mid(from, to - from);
}

void TextView::setSelection(int anchor, int cursor) {
    const int end = lineEnd(lineCount() - 1);
    anchor_ = std::clamp(anchor, 0, end);
    cursor_ = std::clamp(cursor, 0, end);
    showCursor();
    viewport()->update();
    TextViewAccess::selectionChanged(*this);
}

void TextView::selectAll() {
    setSelection(0, int(text_.size()));
}

void TextView::showCursor() {
    const int line = lineOf(cursor_);
    const int rows = std::max(viewport()->height() / lineHeight(), 1);
    const int first = verticalScrollBar()->value();
    if (line < first)
        verticalScrollBar()->setValue(line);
    else if (line >= first + rows)
        verticalScrollBar()->setValue(line - rows + 1);
    const int x = int(std::ceil(ShapedLine(lineText(line), *this).xOf(cursor_ - starts_[std::size_t(line)])));
    const int shift = horizontalScrollBar()->value();
    if (x < shift)
        horizontalScrollBar()->setValue(x);
    else if (x + 2 * margin > shift + viewport()->width())
        horizontalScrollBar()->setValue(x + 2 * margin - viewport()->width());
}

void TextView::copy() const {
    const QString above = heading_.isEmpty() ? QString() : heading_ + u'\n';
    QGuiApplication::clipboard()->setText(anchor_ == cursor_ ? above + text_ : selectedText());
}

bool TextView::find(const QString& what, bool backwards) {
    if (what.isEmpty())
        return false;
    const auto [from, to] = std::minmax(anchor_, cursor_);
    qsizetype found = -1;
    if (backwards) {
        if (from > 0)
            found = text_.lastIndexOf(what, from - 1, Qt::CaseInsensitive);
        if (found < 0)
            found = text_.lastIndexOf(what, -1, Qt::CaseInsensitive);
    } else {
        found = text_.indexOf(what, to, Qt::CaseInsensitive);
        if (found < 0)
            found = text_.indexOf(what, 0, Qt::CaseInsensitive);
    }
    if (found < 0)
        return false;
    setSelection(int(found), int(found + what.size()));
    return true;
}

void TextView::showFindBar() {
    const QString selected = selectedText();
    findBar_->begin(selected.contains(u'\n') ? QString() : selected);
    layOut();
}

} // namespace tally
