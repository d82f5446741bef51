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
#include <vector>

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
    // Asks where the waiting text goes and writes it there; false when the user chose no file.
    bool savePending();
    // Whether the waiting text may be replaced, or the window closed: one that the journal could not keep is
    // offered to be saved before, and stays where it is unless it was saved or given up.
    bool mayGo();

    // What opens a download that was saved.
    void onOpen(std::function<void(const std::string& path)> open) { open_ = std::move(open); }

    // What is told where a download was saved.
    void onSaved(std::function<void(const std::string& path)> told) { savedTo_ = std::move(told); }

    // Told when the notices have changed.
    void onChange(std::function<void()> tell) { changed_ = std::move(tell); }

    // One notice for each reception that waits for the user.
    void showNotices();
    // The same when another program may have received something meanwhile.
    void lookAgain();

private:
    std::vector<JournalEntry> waiting() const;
    bool onlyInMemory(const std::vector<JournalEntry>& waiting) const;
    void noticeOfPending();
    void notice(const JournalEntry& entry);
    std::string textOf(const std::string& id) const;
    void show(const std::string& id, const std::string& title);
    void validate(const JournalEntry& entry);
    void saveAs(const std::string& id);
    void drop(const std::string& id);
    void saved(const std::string& text, const std::string& path);
    void settle(const std::string& id, JournalState state);
    void note(const std::string& id, JournalState state);

    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    DefaultFolder& folder_;
    Menus& menus_;
    NoticeBar& notices_;
    std::optional<PendingDownload> pending_;
    std::function<void(const std::string& path)> open_;
    std::function<void(const std::string& path)> savedTo_ = [](const std::string&) {};
    std::function<void()> changed_;
    QStringList keys_;  // of the notices shown
    std::string shown_; // what they told of
};

} // namespace tally
