// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/PaperText.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>

namespace tally {
namespace {

constexpr double pointsPerInch = 72;
constexpr double largestLetters = 11; // points
constexpr double smallestLetters = 6;

QStringList linesOf(const std::string& text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    QStringList lines = QString::fromStdString(text).split(lineBreak);
    if (lines.back().isEmpty())
        lines.removeLast(); // what follows the last line break is no line
    return lines;
}

bool isNumber(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u',';
    });
}

} // namespace

std::vector<TextField> fieldsOf(const QString& line) {
    static const QRegularExpression field(QStringLiteral("\\S+(?: \\S+)*"));
    std::vector<TextField> fields;
    for (auto match = field.globalMatch(line); match.hasNext();) {
        const auto found = match.next();
        fields.push_back({int(found.capturedStart()), found.captured(), isNumber(found.captured())});
    }
    return fields;
}

PaperText::PaperText(const TextReport& report, const QPagedPaintDevice& device)
    : title_(linesOf(report.title) + linesOf(report.remark)),
      heading_(linesOf(report.heading)),
      lines_(linesOf(report.text)),
      user_(QString::fromStdString(report.user)),
      date_(QString::fromStdString(report.date)),
      font_(QStringLiteral("Times New Roman")),
      page_(0, 0, device.width(), device.height()) {
    font_.setStyleHint(QFont::Serif);
    qsizetype longest = 1;
    for (const QStringList* each : {&heading_, &lines_})
        for (const QString& line : *each)
            longest = std::max(longest, line.size());
    // A column is as wide as a digit. The letters are as large as the longest line allows.
    const double unit = device.logicalDpiX() / pointsPerInch;
    font_.setPixelSize(int(100 * unit));
    const double digit = QFontMetricsF(font_).horizontalAdvance(u'0') / (100 * unit);
    const double fits = page_.width() / double(longest) / digit;
    const double letters = std::clamp(fits, smallestLetters * unit, largestLetters * unit);
    font_.setPixelSize(std::max(int(letters), 1));
    cell_ = std::min(digit * letters, page_.width() / double(longest));
    lineHeight_ = letters * 1.25;
    breakPages();
}

void PaperText::breakPages() {
    // Title, heading and footer each keep a blank line from the text.
    const qsizetype above =
        (title_.isEmpty() ? 0 : title_.size() + 1) + (heading_.isEmpty() ? 0 : heading_.size() + 1);
    const qsizetype room = std::max<qsizetype>(qsizetype(page_.height() / lineHeight_) - above - 2, 1);
    Lines page{0, 0};
    for (qsizetype line = 0; line < lines_.size(); ++line) {
        const bool newPage = lines_[line].startsWith(u'\f');
        if (newPage)
            lines_[line].remove(0, 1);
        if (page.count == room || (newPage && page.count > 0)) {
            pages_.push_back(page);
            page = {line, 0};
        }
        ++page.count;
    }
    pages_.push_back(page);
}

void PaperText::paint(QPainter& painter, int page) const {
    double top = 0;
    const auto put = [&](const QStringList& lines, bool bold) {
        QFont font = font_;
        font.setBold(bold);
        painter.setFont(font);
        for (const QString& line : lines) {
            paintLine(painter, line, top);
            top += lineHeight_;
        }
        if (!lines.isEmpty())
            top += lineHeight_;
    };
    painter.setPen(Qt::black);
    put(title_, true);
    put(heading_, true);
    const Lines shown = pages_[std::size_t(page)];
    put(lines_.mid(shown.first, shown.count), false);
    paintFooter(painter, page);
}

// A field that is wider than its columns and the blanks after it is squeezed, so that it never touches the
// next.
void PaperText::paintLine(QPainter& painter, const QString& line, double top) const {
    const QFontMetricsF metrics(painter.font());
    const std::vector<TextField> fields = fieldsOf(line);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const TextField& field = fields[i];
        const double wide = metrics.horizontalAdvance(field.text);
        const double columns = double(field.text.size()) * cell_;
        const double next = i + 1 < fields.size() ? (fields[i + 1].first - 1) * cell_ : page_.width();
        const double left = field.first * cell_ + (field.number ? std::max(columns - wide, 0.0) : 0.0);
        const double room = std::max(next - left, cell_);
        painter.save();
        painter.translate(left, top + metrics.ascent());
        if (wide > room)
            painter.scale(room / wide, 1);
        painter.drawText(QPointF(0, 0), field.text);
        painter.restore();
    }
}

void PaperText::paintFooter(QPainter& painter, int page) const {
    painter.setFont(font_);
    const QRectF place(0, page_.height() - lineHeight_, page_.width(), lineHeight_);
    const QString number = QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages());
    const double third = page_.width() / 3;
    const QFontMetricsF metrics(font_);
    const auto put = [&](const QString& text, Qt::Alignment side) {
        painter.drawText(place, int(side | Qt::AlignBottom) | Qt::TextSingleLine | Qt::TextDontClip,
                         metrics.elidedText(text, Qt::ElideRight, third));
    };
    put(user_, Qt::AlignLeft);
    put(date_, Qt::AlignHCenter);
    put(number, Qt::AlignRight);
}

} // namespace tally
