// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ArchiveCopies.h"
#include "app/Dispatcher.h"
#include "app/Services.h"
#include "archive/ArchiveChoice.h"
#include "archive/forms/Adder.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tally {

class NoticeBar;
class Printing;
class TLY_File;
class TLY_Study;

namespace archive {
class ArchiveForm;
}

// What the archive works with besides the services of every command.
struct ArchiveParts {
    Dispatcher& dispatcher;
    TLY_File& file;
    TLY_Study& study;
    Printing& printing;
    NoticeBar& notices;
    QWidget& window;
};

// The archive of the window: many recordings, searched in a window of their own.
class TLY_Archive {
public:
    TLY_Archive(const Services& services, ArchiveParts parts);
    ~TLY_Archive();

    void mnuItemArchive_Click();
    // A recording was written to a file: it goes into the archive when the user wants that; asks once.
    void saved(const std::string& path);
    // Whether what is being added may be given up; asks.
    bool mayLeave();
    // Closes the archive's window with the main window.
    void close();
    // Whether an open file is a copy out of the archive.
    bool isCopy(const std::string& path) const { return copies_.holds(path); }

private:
    archive::ArchiveForm& form();
    void open(const std::vector<archive::Fetched>& recordings, bool study);
    Done openCopies(const std::vector<archive::Fetched>& recordings, bool study);
    bool anyArchive() const;
    void setAutomatic(bool on);
    void added(const archive::AddOutcome& outcome, bool quiet);

    const Services& services_;
    ArchiveParts parts_;
    ArchiveCopies copies_;
    std::optional<archive::ArchiveChoice> choice_;
    std::unique_ptr<archive::Adder> adder_;
    std::unique_ptr<archive::ArchiveForm> form_;
};

} // namespace tally
