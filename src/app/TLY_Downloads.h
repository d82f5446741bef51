// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"
#include "link/DownloadSession.h"
#include "link/Journal.h"

#include <QStringList>
#include <optional>
#include <string>

namespace tally {

class DefaultFolder;
class Dispatcher;
class Menus;
class NoticeBar;
class Views;

// Receptions that are not saved yet: each has its notice, and the accepted one waits for Save As.
class TLY_Downloads {
public:
    TLY_Downloads(const Services& services, Dispatcher& dispatcher, Views& views, DefaultFolder& folder,
                  Menus& menus, NoticeBar& notices)
        : services_(services),
          dispatcher_(dispatcher),
          views_(views),
          folder_(folder),
          menus_(menus),
          notices_(notices) {}

    // Keeps an accepted text until it is saved; nothing is no change.
    void take(std::optional<PendingDownload> accepted);
    // What Save As writes while no file is open; nothing when no text waits.
    const std::optional<PendingDownload>& pending() const { return pending_; }
    // The waiting text was written to a file.
    void pendingSaved();

    // One notice for each reception that waits for the user.
    void showNotices();

private:
    void notice(const JournalEntry& entry);
    void show(const JournalEntry& entry);
    void validate(const std::string& id);
    void saveAs(const std::string& id);
    void drop(const std::string& id);
    void settle(const std::string& id, JournalState state);

    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    DefaultFolder& folder_;
    Menus& menus_;
    NoticeBar& notices_;
    std::optional<PendingDownload> pending_;
    QStringList keys_; // of the notices shown
};

} // namespace tally
