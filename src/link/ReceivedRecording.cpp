// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ReceivedRecording.h"

#include "link/FieldDate.h"
#include "link/MissingMode.h"
#include "link/ReceivedText.h"
#include "link/ValidationReport.h"

namespace tally {

namespace {

tl::unexpected<SessionEnd> ended(EndKind kind, const std::string& text) {
    return tl::make_unexpected(SessionEnd{kind, {text}});
}

} // namespace

EndedText endedText(std::string received) {
    const std::size_t end = received.find('\x1a');
    if (end == std::string::npos)
        return {std::move(received)};
    const std::size_t followed = received.size() - end - 1;
    received.resize(end + 1);
    return {std::move(received), followed};
}

void warnOfFollowers(std::size_t followed, Prompt& prompt) {
    if (followed == 0)
        return;
    prompt.show({.text = std::to_string(followed) + (followed == 1 ? " character" : " characters") +
                         " followed the end mark of the recording.\r\n"
                         "It may be cut short there: download it again before you initialize the "
                         "instrument.",
                 .title = "WARNING",
                 .exclamation = true});
}

SessionResult<void> checkRecording(std::string& text, const RunFlags& flags, Prompt& prompt) {
    if (!upperCaseModel(text)) {
        const std::string badData = "Bad data. Try downloading again.";
        prompt.tell(badData);
        return ended(EndKind::badData, badData);
    }
    if (!judgeDownload(text, flags, prompt))
        return ended(EndKind::declined, "No was taken: the download was not kept.");
    return {};
}

SessionResult<void> completeHeader(std::string& text, Prompt& prompt) {
    if (!completeMode(text, prompt))
        return ended(EndKind::badData, missingModeText(text));
    if (!completeHeaderTime(text, prompt))
        return ended(EndKind::declined, "No date was given: the download was not kept.");
    return {};
}

} // namespace tally
