// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/OnlyInMemory.h"

namespace tally {

Fate fateOf(const PendingDownload& pending, Journal& journal, Prompt& prompt,
            const std::function<bool()>& save) {
    if (journal.keeps(pending.id))
        return Fate::kept;
    const std::string why = journal.problem();
    const Message offer = {.text = "The recording that was downloaded is in no file.\r\n" +
                                   (why.empty() ? std::string() : why + "\r\n") + "\r\nSave it now?",
                           .buttons = Buttons::YesNo,
                           .exclamation = true,
                           .defaultAnswer = Answer::Yes};
    if (prompt.show(offer) == Answer::Yes)
        return save() ? Fate::saved : Fate::stays;
    const Message giveUp = {.text = "Give the recording up? It cannot be got back then.",
                            .buttons = Buttons::YesNo,
                            .exclamation = true,
                            .defaultAnswer = Answer::No};
    return prompt.show(giveUp) == Answer::Yes ? Fate::dropped : Fate::stays;
}

} // namespace tally
