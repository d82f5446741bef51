// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/archive/Connection.h"

#include <string>

namespace tally {

// What stands at the path of an archive, before any database library touches it.
enum class FileFound { nothing, empty, database, foreign, unreadable };
FileFound lookAtFile(const std::string& path);

// Why a file cannot be made, from the system's error.
archive::StoreFault cannotMake(const std::string& path, int error);

// How the file can be opened: for writing, or as it stands on a medium that cannot be written.
Connection::Mode modeFor(const std::string& path);

// What every connection to an archive file asks for.
void prepareFile(Connection& connection);

// A file that only this user may read, made unless it is there; goes again unless it is kept. Throws
// StoreFault when it cannot be made.
class NewFile {
public:
    explicit NewFile(std::string path);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    void keep() const { kept_ = true; }

private:
    std::string path_;
    bool made_ = false;
    mutable bool kept_ = false;
};

} // namespace tally
