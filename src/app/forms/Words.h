// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string_view>

namespace tally {

// UTF-8 as the window's text.
inline QString words(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

// The same with CR LF and lone CR made the line breaks of the window.
inline QString lines(std::string_view utf8) {
    return words(utf8)
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace tally
