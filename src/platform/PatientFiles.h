// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"

namespace tally {

// Files for a program with a window: while a thread writes and waits for the disk, the event loop runs on
// without the user's input, so that a slow disk does not freeze what is painted and received. Needs an
// application object.
class PatientFiles : public Files {
public:
    // `files` must outlive the object, and be such that two threads may write different files with it.
    explicit PatientFiles(Files& files) : files_(files) {}

    bool exists(const std::string& path) const override { return files_.exists(path); }
    bool same(const std::string& path, const std::string& other) const override {
        return files_.same(path, other);
    }
    std::string read(const std::string& path, std::uint64_t maximum) const override {
        return files_.read(path, maximum);
    }
    void write(const std::string& path, const std::string& bytes) override;

private:
    Files& files_;
};

} // namespace tally
