// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fileopenera.h"

#include "core/Fault.h"

#include <utility>

namespace tally {

std::optional<Recording> Fileopenera(const Files& files, const std::string& path) {
    try {
        const std::string bytes = files.read(path, mostDataBytes + 1);
        const bool cutShort = bytes.size() > mostDataBytes;
        auto text = readDataText(std::string_view(bytes).substr(0, mostDataBytes), cutShort);
        if (auto* recording = std::get_if<Recording>(&text)) {
            recording->facts.path = path;
            return std::move(*recording);
        }
    } catch (const Fault&) {
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace tally
