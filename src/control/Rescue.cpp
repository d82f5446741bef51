// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Rescue.h"

#include "control/RecoverText.h"
#include "link/HeaderScan.h"
#include "link/Instruments.h"
#include "link/Rescue.h"

namespace tally {

namespace {

// Its readings are counted to find its end; of a part of them that would be another time.
const char* const cutShort = "The recording was cut short before its end mark: the time at which it stopped "
                             "cannot be worked out. Recover it again.";

// The first thing in a whole text that speaks against recovering it.
std::optional<RecoverRefusal> refusalOf(std::string_view text, const HeaderScan& scan, int instrumentType) {
    for (const std::size_t offset : {recoverTypeOffset, recoverMarkOffset}) {
        const std::size_t at = scan.startIndex() + offset;
        if (!scan.started() || at >= text.size())
            return RecoverRefusal::notValid;
        if (const auto refusal = recoverRefusal(offset, text[at], instrumentType))
            return refusal;
    }
    return {};
}

// What the memory of the instrument held at most; older journals know the type alone.
std::int32_t memoryOf(const JournalHeader& header) {
    if (header.maxSamples > 0)
        return header.maxSamples;
    InstrumentState instrument;
    applySelection(instrument, header.instrumentType);
    return instrument.maxSamples;
}

SessionResult<PendingDownload> rescueRecover(Journal& journal, const JournalEntry& entry, Prompt& prompt) {
    EndedText ended = endedText(journal.received(entry.id));
    HeaderScan scan;
    for (char& c : ended.text)
        c = scan.feed(c);
    if (!ended.text.ends_with('\x1a')) {
        prompt.tell(cutShort);
        return tl::make_unexpected(SessionEnd{EndKind::notRecoverable, {cutShort}});
    }
    auto refusal = refusalOf(ended.text, scan, entry.header.instrumentType);
    if (!refusal) {
        warnOfFollowers(ended.followed, prompt);
        const RecoverHeader header = recoverHeader(ended.text);
        const int readings = countReadings(quotedText(ended.text));
        if (!overwritten(header.mode, readings, memoryOf(entry.header))) {
            warnOfDamage(ended.text, prompt);
            const RecoveredText recovered = recoverText(ended.text, header, readings);
            journal.accept(entry.id, recovered.text);
            return PendingDownload{recovered.text, entry.id};
        }
        refusal = RecoverRefusal::notRecoverable;
    }
    const SessionEnd end = recoverEnd(*refusal);
    prompt.tell(end.why.message());
    return tl::make_unexpected(end);
}

} // namespace

SessionResult<PendingDownload> rescue(Journal& journal, const JournalEntry& entry, Prompt& prompt) {
    if (entry.hasAccepted)
        return PendingDownload{journal.text(entry.id), entry.id};
    if (entry.header.command == "recover")
        return rescueRecover(journal, entry, prompt);
    return judgeReception(journal, entry.id, prompt);
}

} // namespace tally
