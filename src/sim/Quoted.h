// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tally::sim {

// Bytes as text in double quotes: printable ASCII as it is, \\ \" \r \n, all else \xNN.
std::string quoted(std::string_view bytes);

// The bytes of such a text; nothing when it is none.
std::optional<std::string> unquoted(std::string_view text);

} // namespace tally::sim
