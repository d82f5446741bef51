// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <string>
#include <string_view>

namespace tally {

// A file that is only added to: every write reaches the system before it returns, so that it outlives the
// program; sync() makes it outlive the machine. While it is open it is held against other programs.
class JournalFile {
public:
    // Makes a new file; false when that cannot be done.
    bool create(const std::string& path);
    // Opens an existing file for adding.
    bool open(const std::string& path);
    bool write(std::string_view bytes);
    bool sync();
    void close() { file_.close(); }
    bool isOpen() const { return file_.isOpen(); }
    // Why the last call failed.
    std::string error() const { return file_.errorString().toStdString(); }

private:
    QFile file_;
};

// Whether a program has the file open.
bool isHeld(const std::string& path);

} // namespace tally
