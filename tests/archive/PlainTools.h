// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveTools.h"
#include "core/ModeTable.h"

#include <algorithm>

namespace tally::testing {

// Tools that a reader can follow: the "hash" is the text filled up to 32 bytes, nothing is squeezed.
class PlainTools : public archive::ArchiveTools {
public:
    std::string sha256(std::string_view bytes) const override {
        std::string sha(bytes.substr(0, 32));
        sha.resize(32, '\x5a');
        return sha;
    }
    std::string squeeze(std::string_view bytes) const override { return "!" + std::string(bytes); }
    std::optional<std::string> unsqueeze(std::string_view bytes) const override {
        if (bytes.substr(0, 1) != "!")
            return std::nullopt;
        return std::string(bytes.substr(1));
    }
    std::string fold(std::string_view text) const override {
        std::string folded(text);
        std::transform(folded.begin(), folded.end(), folded.begin(), lowerCase);
        return folded;
    }
};

} // namespace tally::testing
