// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/Words.h"

namespace tally {

QString words(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

QString lines(std::string_view utf8) {
    return words(utf8)
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace tally
