// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontDatabase>
#include <QLabel>
#include <QString>

namespace tally {

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
