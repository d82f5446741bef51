// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tally::archive {

// What the archive needs of the machine beside its store; pure functions.
class ArchiveTools {
public:
    virtual ~ArchiveTools() = default;
    // The 32 bytes of the SHA-256.
    virtual std::string sha256(std::string_view bytes) const = 0;
    // Bytes in less room, and back; nothing when they were not made by squeeze().
    virtual std::string squeeze(std::string_view bytes) const = 0;
    virtual std::optional<std::string> unsqueeze(std::string_view bytes) const = 0;
    // UTF-8 with upper and lower case made one.
    virtual std::string fold(std::string_view text) const = 0;
};

} // namespace tally::archive
