// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tally {

// Windows-1252 bytes as UTF-8. The five codes without a character stand for the control characters U+0081 to
// U+009D of the same number.
std::string toUtf8(std::string_view bytes1252);

// UTF-8 as Windows-1252 bytes; nothing when a character does not fit or the text is no UTF-8.
std::optional<std::string> to1252(std::string_view utf8);

// The text with every byte that is no part of a UTF-8 character replaced by U+FFFD.
std::string repairedUtf8(std::string_view text);

} // namespace tally
