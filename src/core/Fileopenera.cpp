// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fileopenera.h"

#include "core/DataFile.h"
#include "core/Fault.h"

#include <utility>

namespace tally {

Expected<Recording> Fileopenera(const Files& files, const std::string& path) {
    try {
        const DataBytes data = readDataBytes(files, path);
        auto recording = readDataText(data.bytes, data.cutShort);
        if (!recording)
            return refuse(unknownFileError, path, dataAdvice(recording.error()));
        recording->facts.path = path;
        return *std::move(recording);
    } catch (const Fault& fault) {
        return refuse(unknownFileError, path, std::string(fault.what()) + ". " + faultAdvice(fault));
    }
}

} // namespace tally
