// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontDatabase>
#include <QLabel>
#include <QString>
#include <string_view>

namespace tally {

// A text of the system (UTF-8) as a dialog shows it: CR LF and lone CR become line breaks, blanks stay.
inline QString shown(std::string_view utf8) {
    QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

// A label under its fixed name. `fixed` is for texts that are laid out with blanks.
inline QLabel* namedLabel(const QString& name, bool fixed = false) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (fixed)
        label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return label;
}

} // namespace tally
