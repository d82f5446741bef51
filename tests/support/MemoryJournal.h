// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Fault.h"
#include "link/JournalText.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace tally::testing {

// A journal in memory; it keeps everything, but no accepted text while it has trouble.
class MemoryJournal : public Journal {
public:
    struct Reception {
        JournalHeader header = {};
        std::vector<std::string> parts = {""}; // one for each port settings
        std::string accepted = {};
        JournalState state = JournalState::receiving;
        std::optional<std::int64_t> clockDifference = {};
    };
    std::vector<Reception> receptions;
    std::string trouble;

    void begin(const JournalHeader& header) override { receptions.push_back({.header = header}); }
    void append(std::string_view bytes) override {
        if (receiving())
            receptions.back().parts.back() += bytes;
    }
    void restart(const std::string&) override {
        if (receiving())
            receptions.back().parts.emplace_back();
    }
    void clockDifference(std::int64_t minutes) override { receptions.back().clockDifference = minutes; }
    void end(JournalState state) override { receptions.back().state = state; }
    void accepted(std::string_view text) override { accept(id(), text); }
    void accept(const std::string& id, std::string_view text) override {
        if (!trouble.empty())
            return;
        at(id).accepted = text;
        at(id).state = JournalState::accepted;
    }
    std::string id() const override { return std::to_string(receptions.size()); }

    std::vector<JournalEntry> list() const override {
        std::vector<JournalEntry> entries;
        for (std::size_t i = 0; i < receptions.size(); ++i) {
            entries.push_back({.id = std::to_string(i + 1),
                               .header = receptions[i].header,
                               .state = receptions[i].state,
                               .bytes = receptions[i].parts.back().size(),
                               .hasAccepted = !receptions[i].accepted.empty()});
            describe(entries.back(), receptions[i].parts.back());
        }
        std::reverse(entries.begin(), entries.end());
        return entries;
    }
    std::string text(const std::string& id) const override {
        return at(id).accepted.empty() ? at(id).parts.back() : at(id).accepted;
    }
    std::string received(const std::string& id) const override { return at(id).parts.back(); }
    void mark(const std::string& id, JournalState state) override { at(id).state = state; }
    bool keeps(const std::string& id) override {
        return trouble.empty() && !id.empty() && at(id).state == JournalState::accepted;
    }
    std::string problem() const override { return trouble; }

private:
    bool receiving() const {
        return !receptions.empty() && receptions.back().state == JournalState::receiving;
    }
    const Reception& at(const std::string& id) const {
        for (std::size_t i = 0; i < receptions.size(); ++i)
            if (std::to_string(i + 1) == id)
                return receptions[i];
        throw fault::fileNotFound();
    }
    Reception& at(const std::string& id) {
        return const_cast<Reception&>(static_cast<const MemoryJournal&>(*this).at(id));
    }
};

} // namespace tally::testing
