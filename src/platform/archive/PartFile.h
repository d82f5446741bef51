// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Descriptor.h"

#include <string>

namespace tally {

// A new file under the name PATH.part, for this user alone, until it is whole: what a killed program leaves
// must not look like it. It goes away with the object unless it is finished, and is locked as long as that
// lives; what is not locked was left by a program that was killed, and is written anew. Throws StoreFault.
class PartFile {
public:
    explicit PartFile(std::string path);
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    // Where to write, until it is finished.
    const std::string& name() const { return name_; }
    // Brings the file to the disk and gives it its name, which no other file may have by then. Whoever wrote
    // into it must have closed it.
    void finish();

private:
    void takeOver();
    void removeLogs() const;

    std::string path_;
    std::string name_;
    Descriptor file_;
    bool finished_ = false;
};

} // namespace tally
