// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/Words.h"

#include <QLabel>
#include <string>
#include <string_view>

class QPlainTextEdit;

namespace tally {

// A label under its fixed name.
QLabel* surveyLabel(const QString& name, std::string_view utf8, bool strong = false);

// A read-only box, called "RichTextBox1", that shows a report whole, its tabs at every eighth character.
QPlainTextEdit* reportBox(const std::string& report);

} // namespace tally
