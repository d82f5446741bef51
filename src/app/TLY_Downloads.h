// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"
#include "core/Prompt.h"
#include "link/Journal.h"
#include "link/ReceivedRecording.h"

#include <QStringList>
#include <functional>
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

    // Keeps an accepted text until it is saved; an end without one is no change.
    void take(const SessionResult<PendingDownload>& accepted);
    // What Save As writes while no file is open; nothing when no text waits.
    const std::optional<PendingDownload>& pending() const { return pending_; }
    // The question where a received text goes.
    FileQuestion question(const std::string& text) const;
    // The waiting text was written to a file.
    void pendingSaved(const std::string& path);

    // What opens a download that was saved.
    void onOpen(std::function<void(const std::string& path)> open) { open_ = std::move(open); }

    // One notice for each reception that waits for the user.
    void showNotices();

private:
    void notice(const JournalEntry& entry);
    void show(const JournalEntry& entry);
    void validate(const JournalEntry& entry);
    void saveAs(const std::string& id);
    void drop(const std::string& id);
    void saved(const std::string& text, const std::string& path);
    void settle(const std::string& id, JournalState state);

    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    DefaultFolder& folder_;
    Menus& menus_;
    NoticeBar& notices_;
    std::optional<PendingDownload> pending_;
    std::function<void(const std::string& path)> open_;
    QStringList keys_; // of the notices shown
};

} // namespace tally
