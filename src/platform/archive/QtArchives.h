// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Archives.h"
#include "platform/archive/QtArchiveTools.h"

namespace tally {

// Archives in SQLite and PostgreSQL, and the files of this machine.
class QtArchives : public archive::Archives {
public:
    archive::Opened open(const archive::Place& place) const override;
    Expected<void> make(const archive::Place& place) const override;
    archive::Place usual() const override;
    const archive::ArchiveTools& tools() const override { return tools_; }
    void eachFile(
        const std::string& path, const std::function<bool(archive::FoundFile&&)>& receive,
        const std::function<void(const std::string& path, const std::string& reason)>& failed) const override;

private:
    QtArchiveTools tools_;
};

} // namespace tally
