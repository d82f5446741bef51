// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SafeFile.h"

#include <map>
#include <optional>
#include <string>

namespace tally::cli {

class Context;

// The files of this machine, and beside them recordings of the archive under names of their own, which cannot
// be written.
class ArchiveFiles : public SafeFile {
public:
    bool exists(const std::string& path) const override;
    bool same(const std::string& path, const std::string& other) const override;
    std::string read(const std::string& path, std::uint64_t maximum) const override;
    void write(const std::string& path, const std::string& bytes) override;

    void put(const std::string& path, std::string bytes) { kept_[path] = std::move(bytes); }

private:
    std::map<std::string, std::string> kept_;
};

// Whether a name on the command line means a recording of the archive: "archive:ID".
bool isArchived(const std::string& typed);

// Makes such a recording, with its notes, readable through the context's files; gives the path to read it
// from. Throws Refused when there is none.
std::string fetchArchived(Context& context, const std::string& typed);

} // namespace tally::cli
