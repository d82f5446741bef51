// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "link/Journal.h"
#include "platform/DiskThread.h"
#include "platform/JournalFile.h"
#include "platform/ReceptionFile.h"

#include <QTimer>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace tally {

// The journal as files of a folder, three to a reception: ".raw" the characters as they came, ".log" what is
// known about them, ".dat" the accepted text; all for this user alone. Characters are with the system the
// moment they are read and on the disk within a second; a thread of the journal's own waits for the disk.
// What it could not do is told when the event loop runs.
class JournalFolder : public Journal {
public:
    JournalFolder(std::string folder, Files& files);
    ~JournalFolder() override;

    // Called when receptions cannot be written down, once for each of them.
    void onProblem(std::function<void(const std::string&)> tell) { tell_ = std::move(tell); }

    void begin(const JournalHeader& header) override;
    void append(std::string_view bytes) override;
    std::span<char> room() override;
    void restart(const std::string& settings) override;
    void clockDifference(std::int64_t minutes) override;
    void end(JournalState state) override;
    void accepted(std::string_view text) override;
    std::string id() const override { return id_; }

    std::vector<JournalEntry> list() const override;
    std::string text(const std::string& id) const override;
    std::string received(const std::string& id) const override;
    void mark(const std::string& id, JournalState state) override;
    void accept(const std::string& id, std::string_view text) override;
    bool keeps(const std::string& id) override;
    std::string problem() const override { return problem_; }

    // Waits until everything is on the disk, or was told that it is not.
    void settle();

private:
    std::string path(const std::string& id, const char* ending) const;
    std::string newId() const;
    std::vector<std::string> ids() const; // newest first
    std::optional<JournalEntry> entry(const std::string& id) const;
    bool create();
    std::optional<std::string> accepting(const std::string& id) const;
    void bringAccepted(const std::string& id, std::string_view text, JournalFile log);
    JournalFile logOf(const std::string& id) const;
    std::string characters(const std::string& id, std::uint64_t maximum) const;
    std::uint64_t countOf(const std::string& id) const;
    void note(const std::string& line);
    void bring(JournalFile file);
    void report(const std::string& why);
    void takeReport();
    void fail(const std::string& why);
    void removeOld(std::size_t maximum) const;
    void remove(const std::string& id) const;

    std::string folder_;
    Files& files_;
    std::function<void(const std::string&)> tell_;
    std::string id_;
    std::string problem_;
    ReceptionFile raw_;
    JournalFile log_;
    QTimer syncTimer_;
    bool receiving_ = false;
    bool told_ = false;

    mutable std::mutex mutex_;                     // of what the thread shares
    std::map<std::string, std::string> accepting_; // texts on their way to the disk
    std::string report_;
    DiskThread disk_; // ends first
};

} // namespace tally
