// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Downloads.h"

#include "app/DefaultFolder.h"
#include "app/Dispatcher.h"
#include "app/Menus.h"
#include "app/TLY_File.h"
#include "app/Views.h"
#include "app/forms/NoticeBar.h"
#include "app/forms/Words.h"
#include "control/Rescue.h"
#include "core/RecentFiles.h"
#include "core/SaveText.h"
#include "core/Text1252.h"
#include "link/Rescue.h"
#include "link/SavedDownload.h"

namespace tally {

namespace {

// More would fill the window; the others come up when these are settled.
constexpr std::size_t mostNotices = 3;
const QString problemKey = QStringLiteral("journal");
const QString savedKey = QStringLiteral("saved download");

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

void TLY_Downloads::pendingSaved(const std::string& path) {
    if (!pending_)
        return;
    const PendingDownload done = *pending_;
    pending_.reset();
    settle(done.id, JournalState::saved);
    saved(done.text, path);
}

// Where it went, with a way to open it; the next one is proposed beside it.
void TLY_Downloads::saved(const std::string& text, const std::string& path) {
    noteSaved(services_.settings, path);
    menus_.showMru(recentFiles(services_.settings), services_.recordings.freeSlot() >= 0);
    notices_.put(savedKey, words(savedText(text, path)), {{QStringLiteral("Open"), [this, path] {
                                                               notices_.remove(savedKey);
                                                               open_(path);
                                                           }}});
}

void TLY_Downloads::showNotices() {
    const Journal& journal = services_.link.journal;
    for (const QString& key : keys_)
        notices_.remove(key);
    keys_.clear();
    if (!journal.problem().empty())
        notices_.put(problemKey, words(journal.problem()));
    const auto waiting = unsavedReceptions(journal);
    for (std::size_t i = 0; i < waiting.size() && i < mostNotices; ++i)
        notice(waiting[i]);
}

void TLY_Downloads::notice(const JournalEntry& entry) {
    const auto on = [this](auto action) { return [this, action] { dispatcher_.run(action); }; };
    const std::string id = entry.id;
    std::vector<NoticeAction> actions = {{QStringLiteral("Show"), on([this, entry] { show(entry); })}};
    if (entry.state != JournalState::accepted)
        actions.push_back({QStringLiteral("Validate"), on([this, entry] { validate(entry); })});
    actions.push_back({QStringLiteral("Save As..."), on([this, id] { saveAs(id); })});
    actions.push_back({QStringLiteral("Drop"), on([this, id] { drop(id); })});
    keys_.append(QStringLiteral("reception ") + words(id));
    notices_.put(keys_.last(), words(receptionText(entry)), actions, false);
}

void TLY_Downloads::show(const JournalEntry& entry) {
    views_.showReception(toUtf8(shownLines(services_.link.journal.text(entry.id))), receptionText(entry));
}

void TLY_Downloads::validate(const JournalEntry& entry) {
    take(rescue(services_.link.journal, entry, services_.prompt));
    showNotices();
}

void TLY_Downloads::saveAs(const std::string& id) {
    const Services& s = services_;
    const std::string text = s.link.journal.text(id);
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
    if (!id.empty())
        services_.link.journal.mark(id, state);
    showNotices();
}

} // namespace tally
