// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Settings.h"

#include <map>
#include <utility>

namespace tally::testing {

class MemorySettings : public Settings {
public:
    std::map<std::pair<std::string, std::string>, std::string> values;

    std::string get(const std::string& section, const std::string& key) const override {
        const auto found = values.find({section, key});
        return found == values.end() ? std::string() : found->second;
    }
    void set(const std::string& section, const std::string& key, const std::string& value) override {
        values[{section, key}] = value;
    }
};

} // namespace tally::testing
