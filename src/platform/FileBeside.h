// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Descriptor.h"

#include <string>
#include <sys/types.h>

namespace tally {

// A new file with a name of its own in a folder, there to take the place of another one. It goes away with
// the object, and is locked as long as that lives: what is not locked was left by a program that was killed.
// The name does not depend on the other file's, so that it is never too long.
class FileBeside {
public:
    // file() is not open when that failed; errno then says why. `folder` must outlive the object.
    FileBeside(const Descriptor& folder, mode_t mode);
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    const Descriptor& file() const { return file_; }
    const std::string& name() const { return name_; }
    // It got another name: there is nothing to remove.
    void isGone() { name_.clear(); }

    // Removes what killed programs left in a folder. Trouble with that is nobody's trouble. A large
    // folder is not looked through twice in a moment: some work writes thousands of files into one.
    static void removeLeft(const Descriptor& folder);

private:
    bool make(const char* name, mode_t mode);

    const Descriptor& folder_;
    std::string name_;
    Descriptor file_;
};

} // namespace tally
