// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tally {

// The per-user store: section, key, text (UTF-8). A missing key reads as the empty text.
class Settings {
public:
    virtual ~Settings() = default;
    virtual std::string get(const std::string& section, const std::string& key) const = 0;
    virtual void set(const std::string& section, const std::string& key, const std::string& value) = 0;
};

} // namespace tally
