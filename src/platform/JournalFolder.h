// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "link/Journal.h"
#include "platform/JournalFile.h"

#include <QTimer>
#include <functional>
#include <string>

namespace tally {

// The journal as files of a folder, three to a reception: ".raw" the characters as they came, ".log" what is
// known about them, ".dat" the accepted text. Characters are with the system at once and on the disk within a
// second.
class JournalFolder : public Journal {
public:
    JournalFolder(std::string folder, Files& files);
    ~JournalFolder() override;

    // Called once, when receptions cannot be written down.
    void onProblem(std::function<void(const std::string&)> tell) { tell_ = std::move(tell); }

    void begin(const JournalHeader& header) override;
    void append(std::string_view bytes) override;
    void restart(const std::string& settings) override;
    void clockDifference(std::int64_t minutes) override;
    void end(JournalState state) override;
    void accepted(std::string_view text) override;
    std::string id() const override { return id_; }

    std::vector<JournalEntry> list() const override;
    std::string text(const std::string& id) const override;
    void mark(const std::string& id, JournalState state) override;
    void accept(const std::string& id, std::string_view text) override;
    std::string problem() const override { return problem_; }

private:
    std::string path(const std::string& id, const char* ending) const;
    std::string newId() const;
    std::vector<std::string> ids() const; // newest first
    std::optional<JournalEntry> entry(const std::string& id) const;
    void note(const std::string& line);
    void sync();
    void fail(const std::string& why);
    void removeOld(std::size_t most);

    std::string folder_;
    Files& files_;
    std::function<void(const std::string&)> tell_;
    std::string id_;
    std::string problem_;
    JournalFile raw_;
    JournalFile log_;
    QTimer syncTimer_;
    std::uint64_t bytes_ = 0;
    bool receiving_ = false;
    bool told_ = false;
};

} // namespace tally
