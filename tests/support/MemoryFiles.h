// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Fault.h"
#include "core/Files.h"

#include <filesystem>
#include <map>
#include <optional>

namespace tally::testing {

// Files in memory that can be made to fail on purpose.
class MemoryFiles : public Files {
public:
    std::map<std::string, std::string> contents; // by path, with "/" on every system
    std::optional<Fault> failRead;               // thrown by the next reads
    std::optional<Fault> failWrite;              // thrown by the next writes, which change nothing

    bool exists(const std::string& path) const override { return contents.contains(key(path)); }
    bool same(const std::string& path, const std::string& other) const override {
        return std::filesystem::path(path).lexically_normal() ==
               std::filesystem::path(other).lexically_normal();
    }
    std::string read(const std::string& path, std::uint64_t maximum) const override {
        if (failRead)
            throw *failRead;
        const auto found = contents.find(key(path));
        if (found == contents.end())
            throw fault::fileNotFound();
        return found->second.substr(0, maximum);
    }
    void write(const std::string& path, const std::string& bytes) override {
        if (failWrite)
            throw *failWrite;
        contents[key(path)] = bytes;
    }

private:
    static std::string key(const std::string& path) { return std::filesystem::path(path).generic_string(); }
};

} // namespace tally::testing
