// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Rescue.h"

#include "core/Text1252.h"
#include "link/FieldDate.h"
#include "link/ReceivedText.h"
#include "link/ValidationReport.h"

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

std::optional<PendingDownload> validateReception(Journal& journal, const std::string& id, Prompt& prompt) {
    std::string text = journal.text(id);
    if (!upperCaseModel(text)) {
        prompt.tell("Bad data. Try downloading again.");
        return {};
    }
    if (!judgeDownload(text, {}, prompt) || !completeHeaderTime(text, prompt))
        return {};
    journal.accept(id, text);
    return PendingDownload{text, id};
}

std::vector<JournalEntry> unsavedReceptions(const Journal& journal) {
    std::vector<JournalEntry> entries = journal.list();
    std::erase_if(entries, [](const JournalEntry& entry) { return !isUnsaved(entry.state); });
    return entries;
}

std::string receptionText(const JournalEntry& entry) {
    std::string text = screenTime(entry.header.pcTime) + "  " + entry.header.command + " on COM" +
                       std::to_string(entry.header.commPort);
    if (!entry.model.empty())
        text += ", " + toUtf8(entry.model) + " Ser. " + toUtf8(entry.serial);
    return text + ", " + std::to_string(entry.bytes) + " characters: " + std::string(stateText(entry.state));
}

} // namespace tally
