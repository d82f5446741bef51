// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Downloads.h"

#include "app/DefaultFolder.h"
#include "app/Dispatcher.h"
#include "app/Menus.h"
#include "app/TLY_File.h"
#include "app/Views.h"
#include "app/forms/NoticeBar.h"
#include "control/Rescue.h"
#include "core/Fault.h"
#include "core/Header.h"
#include "core/RecentFiles.h"
#include "core/SaveText.h"
#include "core/Text1252.h"
#include "core/forms/Words.h"
#include "link/OnlyInMemory.h"
#include "link/ReceivedText.h"
#include "link/Rescue.h"
#include "link/SavedDownload.h"

#include <algorithm>

namespace tally {

namespace {

// More would fill the window; the others come up when these are settled.
constexpr std::size_t maximumNotices = 3;
const QString problemKey = QStringLiteral("journal");
const QString savedKey = QStringLiteral("saved download");
const QString pendingKey = QStringLiteral("only in memory");

// Instruments end their lines with CR LF, LF CR or one of them alone; shown, each is one line end.
std::string shownLines(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c != '\r' && c != '\n') {
            lines += c;
            continue;
        }
        lines += '\n';
        if (i + 1 < text.size() && text[i + 1] == (c == '\r' ? '\n' : '\r'))
            ++i;
    }
    return lines;
}

// What the notices of these receptions say.
std::string textsOf(const std::vector<JournalEntry>& entries) {
    std::string texts;
    for (const JournalEntry& entry : entries)
        texts += entry.id + " " + receptionText(entry) + "\n";
    return texts;
}

} // namespace

void TLY_Downloads::take(const SessionResult<PendingDownload>& accepted) {
    if (!accepted)
        return;
    services_.recordings.gText = accepted->text;
    pending_ = *accepted;
    menus_.apply(MenuEvent::textKept);
}

FileQuestion TLY_Downloads::question(const std::string& text) const {
    return saveQuestion(text, services_.settings, folder_.forDialog(), saveFilter);
}

bool TLY_Downloads::savePending() {
    const PendingDownload writing = *pending_;
    const auto path = services_.prompt.chooseFile(question(writing.text));
    if (!path)
        return false;
    services_.files.write(*path, tally::quoted(writing.text));
    settle(writing.id, JournalState::saved);
    saved(writing.text, *path);
    return true;
}

bool TLY_Downloads::mayGo() {
    if (!pending_)
        return true;
    switch (
        fateOf(*pending_, services_.session.journal, services_.prompt, [this] { return savePending(); })) {
    case Fate::kept:
    case Fate::saved:
        return true;
    case Fate::dropped:
        settle(std::string(pending_->id), JournalState::dropped);
        return true;
    case Fate::stays:
        break;
    }
    return false;
}

// Where it went, with a way to open it; the next one is proposed beside it.
void TLY_Downloads::saved(const std::string& text, const std::string& path) {
    noteSaved(services_.settings, path);
    savedTo_(path);
    menus_.showMru(recentFiles(services_.settings), services_.recordings.freeSlot() >= 0);
    notices_.put(savedKey, words(savedText(text, path)), {{QStringLiteral("Open"), [this, path] {
                                                               notices_.remove(savedKey);
                                                               open_(path);
                                                           }}});
}

// Newest first; without what is left of the waiting text in a journal that could not keep the whole of it.
std::vector<JournalEntry> TLY_Downloads::waiting() const {
    auto entries = unsavedReceptions(services_.session.journal);
    std::erase_if(entries, [this](const JournalEntry& entry) {
        return pending_ && entry.id == pending_->id && entry.state != JournalState::accepted;
    });
    return entries;
}

bool TLY_Downloads::onlyInMemory(const std::vector<JournalEntry>& waiting) const {
    return pending_ && std::none_of(waiting.begin(), waiting.end(),
                                    [this](const JournalEntry& entry) { return entry.id == pending_->id; });
}

void TLY_Downloads::showNotices() {
    const Journal& journal = services_.session.journal;
    for (const QString& key : keys_)
        notices_.remove(key);
    keys_.clear();
    if (!journal.problem().empty())
        notices_.put(problemKey, words(journal.problem()));
    const auto entries = waiting();
    if (onlyInMemory(entries))
        noticeOfPending();
    for (std::size_t i = 0; i < entries.size() && i < maximumNotices; ++i)
        notice(entries[i]);
    shown_ = textsOf(entries);
    if (changed_)
        changed_();
}

void TLY_Downloads::lookAgain() {
    if (textsOf(waiting()) != shown_)
        showNotices();
}

// The journal could not keep it: what it has is not offered instead.
void TLY_Downloads::noticeOfPending() {
    const auto on = [this](auto action) { return [this, action] { dispatcher_.run(action); }; };
    const std::string id = pending_->id;
    const std::string serial = toUtf8(headerField(headerOf(pending_->text), column::serial));
    const std::string title = "The download" + (serial.empty() ? "" : " of instrument " + serial);
    keys_.append(pendingKey);
    notices_.put(keys_.last(), words(title + " is in no file and on no disk. Save it before anything else."),
                 {{QStringLiteral("Show"), on([this, id, title] { show(id, title); })},
                  {QStringLiteral("Save As..."), on([this] {
                       if (pending_)
                           savePending();
                   })},
                  {QStringLiteral("Drop"), on([this, id] { drop(id); })}},
                 false);
}

void TLY_Downloads::notice(const JournalEntry& entry) {
    const auto on = [this](auto action) { return [this, action] { dispatcher_.run(action); }; };
    const std::string id = entry.id;
    std::vector<NoticeAction> actions = {
        {QStringLiteral("Show"), on([this, id, title = receptionText(entry)] { show(id, title); })}};
    if (entry.state != JournalState::accepted)
        actions.push_back({QStringLiteral("Validate"), on([this, entry] { validate(entry); })});
    actions.push_back({QStringLiteral("Save As..."), on([this, id] { saveAs(id); })});
    actions.push_back({QStringLiteral("Drop"), on([this, id] { drop(id); })});
    keys_.append(QStringLiteral("reception ") + words(id));
    notices_.put(keys_.last(), words(receptionText(entry)), actions, false);
}

// The whole of the waiting text, whatever the journal holds of it.
std::string TLY_Downloads::textOf(const std::string& id) const {
    return pending_ && pending_->id == id ? pending_->text : services_.session.journal.text(id);
}

void TLY_Downloads::show(const std::string& id, const std::string& title) {
    views_.showReception(toUtf8(shownLines(textOf(id))), title);
}

void TLY_Downloads::validate(const JournalEntry& entry) {
    if (!mayGo())
        return;
    take(rescue(services_.session.journal, entry, services_.prompt));
    showNotices();
}

void TLY_Downloads::saveAs(const std::string& id) {
    const Services& s = services_;
    const std::string text = textOf(id);
    const auto path = s.prompt.chooseFile(question(text));
    if (!path)
        return;
    s.files.write(*path, tally::quoted(text));
    settle(id, JournalState::saved);
    saved(text, *path);
}

void TLY_Downloads::drop(const std::string& id) {
    const Answer answer =
        services_.prompt.show({.text = "Give this reception up? It cannot be shown or saved then.",
                               .buttons = Buttons::YesNo,
                               .exclamation = true,
                               .defaultAnswer = Answer::No});
    if (answer == Answer::Yes)
        settle(id, JournalState::dropped);
}

// Its notice goes, and Save As has nothing of it to write any more.
void TLY_Downloads::settle(const std::string& id, JournalState state) {
    if (pending_ && pending_->id == id)
        pending_.reset();
    if (!pending_ && !services_.recordings.isOpen(0))
        menus_.apply(MenuEvent::saved);
    note(id, state);
    showNotices();
}

// A journal that cannot be written changes nothing about a file that was.
void TLY_Downloads::note(const std::string& id, JournalState state) {
    if (id.empty())
        return;
    try {
        services_.session.journal.mark(id, state);
    } catch (const Fault& fault) {
        if (fault.number() == fault::fileNotFound().number())
            return;
        notices_.put(problemKey,
                     words("The journal could not note that a download was " + std::string(stateName(state)) +
                           " (" + fault.what() + "): it is offered again at the next start."));
    }
}

} // namespace tally
