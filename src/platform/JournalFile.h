// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tally {

// A file that is only added to: every write reaches the system before it returns, so that it outlives the
// program; sync() makes it outlive the machine. While it is open it is held against other programs. Copies
// share the open file, which stays open until the last of them is closed.
class JournalFile {
public:
    // Makes a new file for this user alone; false when that cannot be done.
    bool create(const std::string& path);
    // Opens an existing file for adding.
    bool open(const std::string& path);
    bool write(std::string_view bytes);
    bool sync();
    // Cuts the file to so many bytes.
    bool cut(std::uint64_t size);
    void close() { file_.reset(); }
    bool isOpen() const { return file_ != nullptr; }
    // Why the last call failed.
    const std::string& error() const { return error_; }
    // The last create() failed because there is such a file.
    bool wasThere() const { return wasThere_; }
    // The last write or sync failed because the disk is full.
    bool isFull() const { return full_; }
    // The open file as the system knows it; -1 where it cannot be mapped.
    int descriptor() const;

private:
    struct Open;
    bool failed(int error);

    std::shared_ptr<Open> file_;
    std::string error_;
    bool wasThere_ = false;
    bool full_ = false;
};

// Brings the names in a folder to the disk, as far as that can be asked for.
bool syncFolder(const std::string& folder);

// Whether a program has the file open. A disk that knows no locks tells nothing: no.
bool isHeld(const std::string& path);

// Runs `action` while the file is held against other programs; does nothing when one has it open or the disk
// knows no locks.
void whileHeld(const std::string& path, const std::function<void()>& action);

} // namespace tally
