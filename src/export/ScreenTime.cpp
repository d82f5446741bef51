// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ScreenTime.h"

#include "core/Fault.h"

#include <array>

namespace tally {

namespace {

// "Jan" to "Dec" as the number of a month, 0 for no month.
int monthOf(std::string_view name) {
    constexpr std::string_view names = "JanFebMarAprMayJunJulAugSepOctNovDec";
    const auto at = names.find(name);
    return at == std::string_view::npos || at % 3 != 0 ? 0 : static_cast<int>(at / 3) + 1;
}

} // namespace

ReadingTime parseScreenTime(std::string_view text) {
    const int month = monthOf(text.substr(7, 3));
    if (month == 0 || text.substr(5, 2) != "  " || text[10] != ' ' || text.substr(13, 2) != ", ")
        throw fault::typeMismatch();
    // The same date in the form of a header time, whose reader checks it.
    const std::array<char, 14> header = {static_cast<char>('0' + month / 10),
                                         static_cast<char>('0' + month % 10),
                                         '-',
                                         text[11],
                                         text[12],
                                         '-',
                                         text[15],
                                         text[16],
                                         ' ',
                                         text[0],
                                         text[1],
                                         text[2],
                                         text[3],
                                         text[4]};
    const auto time = parseHeaderTime({header.data(), header.size()});
    if (!time)
        throw fault::typeMismatch();
    return *time;
}

} // namespace tally
