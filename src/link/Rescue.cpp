// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Rescue.h"

#include "core/Text1252.h"
#include "link/PromptTexts.h"

#include <set>
#include <string_view>

namespace tally {

namespace {

std::string_view stateText(JournalState state) {
    switch (state) {
    case JournalState::receiving:
        return "being received";
    case JournalState::interrupted:
        return "interrupted, not saved";
    case JournalState::received:
        return "received, not saved";
    case JournalState::accepted:
        return "accepted, not saved yet";
    case JournalState::refused:
        return "refused";
    case JournalState::saved:
        return "saved";
    case JournalState::dropped:
        return "dropped";
    }
    return {};
}

} // namespace

SessionResult<PendingDownload> judgeReception(Journal& journal, const std::string& id, Prompt& prompt) {
    EndedText ended = endedText(journal.received(id));
    std::string& text = ended.text;
    warnOfFollowers(ended.followed, prompt);
    if (const auto checked = checkRecording(text, {}, prompt); !checked)
        return tl::make_unexpected(checked.error());
    if (const auto complete = completeHeader(text, prompt); !complete)
        return tl::make_unexpected(complete.error());
    journal.accept(id, text);
    return PendingDownload{text, id};
}

std::vector<JournalEntry> unsavedReceptions(const Journal& journal) {
    std::vector<JournalEntry> waiting;
    std::set<std::string> savedSince;
    for (JournalEntry& entry : journal.list()) {
        const bool refused = entry.state == JournalState::refused && !entry.serial.empty();
        if (entry.state == JournalState::saved)
            savedSince.insert(entry.serial);
        else if (isUnsaved(entry.state) || (refused && !savedSince.contains(entry.serial)))
            waiting.push_back(std::move(entry));
    }
    return waiting;
}

std::string receptionText(const JournalEntry& entry) {
    std::string text = screenTime(entry.header.pcTime) + "  " + entry.header.command + " on " +
                       portName(entry.header.commPort, entry.header.device);
    if (!entry.model.empty())
        text += ", " + toUtf8(entry.model) + " Ser. " + toUtf8(entry.serial);
    return text + ", " + std::to_string(entry.bytes) + " characters: " + std::string(stateText(entry.state));
}

} // namespace tally
