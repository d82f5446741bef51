// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>
#include <string_view>

class QPlainTextEdit;

namespace tally {

// UTF-8 as the window's text.
inline QString words(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

// A label under its fixed name.
QLabel* surveyLabel(const QString& name, std::string_view utf8, bool strong = false);

// A read-only box, called "RichTextBox1", that shows a report whole, its tabs at every eighth character.
QPlainTextEdit* reportBox(const std::string& report);

} // namespace tally
