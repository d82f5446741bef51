// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/forms/SurveyText.h"

#include "survey/SurveyReport.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPlainTextEdit>
#include <algorithm>
#include <cmath>

namespace tally {

namespace {

constexpr int tabColumns = 8;
constexpr int maximumLines = 24; // longer reports are scrolled
constexpr int maximumColumns = 90;

} // namespace

QLabel* surveyLabel(const QString& name, std::string_view utf8, bool strong) {
    auto* label = new QLabel(words(utf8));
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = label->font();
    font.setBold(strong);
    label->setFont(font);
    return label;
}

QPlainTextEdit* reportBox(const std::string& report) {
    auto* box = new QPlainTextEdit;
    box->setObjectName(QStringLiteral("RichTextBox1"));
    box->setAccessibleName(QStringLiteral("Report"));
    box->setReadOnly(true);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const QFontMetricsF metrics(box->font());
    const qreal column = metrics.horizontalAdvance(QLatin1Char('0'));
    box->setTabStopDistance(tabColumns * column);
    box->setPlainText(words(report));

    const QStringList lines = words(expandTabs(report)).split(QStringLiteral("\r\n"));
    qsizetype widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, line.size());
    const qreal around = 2 * (box->document()->documentMargin() + box->frameWidth());
    box->setMinimumSize(
        int(std::ceil(column * qreal(std::min<qsizetype>(widest + 3, maximumColumns)) + around)),
        int(std::ceil(metrics.lineSpacing() * qreal(std::min<qsizetype>(lines.size() + 1, maximumLines)) +
                      around)));
    return box;
}

} // namespace tally
