// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string_view>

namespace tally {

// UTF-8 as the window's text.
QString words(std::string_view utf8);

// The same with CR LF and lone CR made the line breaks of the window; blanks stay.
QString lines(std::string_view utf8);

} // namespace tally
