// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveTools.h"

namespace tally {

// Hash, compression and letter case by Qt. May be used from any thread.
class QtArchiveTools : public archive::ArchiveTools {
public:
    std::string sha256(std::string_view bytes) const override;
    std::string squeeze(std::string_view bytes) const override;
    std::optional<std::string> unsqueeze(std::string_view bytes) const override;
    std::string fold(std::string_view text) const override;
};

} // namespace tally
