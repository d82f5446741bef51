// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Edit.h"

#include "app/Menus.h"
#include "app/NoticeBar.h"
#include "app/Screen.h"
#include "app/StatusPanels.h"
#include "app/TLY.h"
#include "app/TLY_File.h"
#include "app/TLY_View.h"
#include "app/forms/EditNotes.h"
#include "app/forms/ForceRdgs.h"
#include "app/forms/Words.h"
#include "core/ForceReadings.h"
#include "core/NotesFile.h"
#include "core/Numbers.h"
#include "view/PlotSeries.h"
#include "view/ShownRange.h"
#include "view/forms/Chart.h"

namespace tally {

namespace {

constexpr const char* notesError =
    "Software error in mnuItemNotes_Click: \r\n   A case that couldn't happen, happened.";
constexpr const char* newNote = "Enter note here";
const QString noticeKey = QStringLiteral("forced");

bool isSlot(int ginx) {
    return ginx >= 0 && ginx < Recordings::slotCount;
}

// The forced stretches of a whole file, first and last reading of each.
std::vector<std::pair<int, int>> forcedIn(const Recordings& recordings, int slot) {
    return forcedRuns(recordings, slot, {0, recordings.info(slot).count - 1}, 1, 0);
}

int forcedCount(const Recordings& recordings, int slot) {
    int count = 0;
    for (const auto& [first, last] : forcedIn(recordings, slot))
        count += last - first + 1;
    return count;
}

} // namespace

void TLY_Edit::mnuItemNotes_Click() {
    const Services& s = window_.services();
    SelectFile(s.recordings, s.chooser);
    const int slot = s.recordings.ginx;
    if (slot == Recordings::cancelled)
        return;
    if (slot == Recordings::noFile) {
        s.prompt.tell(std::string(noFileOpen));
        return;
    }
    if (!isSlot(slot)) {
        s.prompt.tell(notesError);
        return;
    }
    EditNotes form(s.recordings.info(slot).path, s.recordings.gNotes[std::size_t(slot)], &window_);
    // When the notes cannot be written the form comes back with what was typed.
    while (form.exec() == QDialog::Accepted) {
        if (window_.dispatcher().attempt([&] { saveNotes(s.recordings, s.files, slot, form.notes()); })) {
            window_.view().refresh();
            return;
        }
    }
}

void TLY_Edit::mnuItemForceRdg_Click() {
    if (window_.view().noFile())
        return;
    const Services& s = window_.services();
    const int readings = s.recordings.gdataend - s.recordings.gDatastart + 1;
    const std::string file = isSlot(s.recordings.ginx) ? s.recordings.info(s.recordings.ginx).path : "";
    ForceRdgs form(file, plain(lastValue_), std::to_string(readings), &window_);
    if (form.exec() != QDialog::Accepted)
        return;
    const ForceWhich which = form.leftmost()    ? ForceWhich::leftmost
                             : form.rightmost() ? ForceWhich::rightmost
                                                : ForceWhich::all;
    const ForceResult result = forceReadings(s.recordings, form.value(), which, lastValue_);
    if (!result.done()) {
        s.prompt.tell(result.message);
        return;
    }
    // A shorter file may have no reading in the range; there is nothing to take back or to save then.
    if (result.count == 0)
        return;
    unsaved_[std::size_t(s.recordings.ginx)] = true;
    forcings_.push_back(s.recordings.ginx);
    window_.menus().apply(MenuEvent::forced);
    showForced();
    window_.view().refresh();
}

void TLY_Edit::undo() {
    const Services& s = window_.services();
    if (forcings_.empty())
        return;
    const int slot = forcings_.back();
    forcings_.pop_back();
    undoForcing(s.recordings, slot);
    if (forcedCount(s.recordings, slot) == 0)
        unsaved_[std::size_t(slot)] = false;
    showForced();
    window_.view().refresh();
}

void TLY_Edit::showForced() {
    const Recordings& recordings = window_.services().recordings;
    QStringList texts;
    std::erase_if(forcings_, [&](int slot) { return !recordings.isOpen(slot); });
    for (int slot = 0; slot < Recordings::slotCount; ++slot) {
        unsaved_[std::size_t(slot)] = unsaved_[std::size_t(slot)] && recordings.isOpen(slot);
        if (unsaved_[std::size_t(slot)])
            texts.append(QStringLiteral("%1: %2 forced reading(s), not saved yet.")
                             .arg(words(fileNameOf(recordings.info(slot).path)))
                             .arg(forcedCount(recordings, slot)));
    }
    if (texts.isEmpty()) {
        window_.notices().remove(noticeKey);
        return;
    }
    const std::vector<NoticeAction> actions = {
        {QStringLiteral("Undo (Ctrl+Z)"), [this] { window_.dispatcher().run([this] { undo(); }); }},
        {QStringLiteral("Save As..."),
         [this] { window_.dispatcher().run([this] { window_.file().mnuItemSave_Click(); }); }}};
    window_.notices().put(noticeKey, texts.join(QLatin1Char(' ')), actions, false);
}

void TLY_Edit::saved(int slot, int first, int last) {
    if (!isSlot(slot))
        return;
    for (const auto& [from, to] : forcedIn(window_.services().recordings, slot))
        if (from < first || to > last)
            return;
    unsaved_[std::size_t(slot)] = false;
    showForced();
}

bool TLY_Edit::mayLeave() {
    const Services& s = window_.services();
    std::string files;
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        if (unsaved_[std::size_t(slot)])
            files += "  " + fileNameOf(s.recordings.info(slot).path) + "\r\n";
    if (files.empty())
        return true;
    return s.prompt.show({.text = "Forced readings of these files were not saved:\r\n" + files +
                                  "Close without saving them?",
                          .buttons = Buttons::YesNo,
                          .exclamation = true,
                          .defaultAnswer = Answer::No}) == Answer::Yes;
}

void TLY_Edit::mnuItemadd_Click() {
    if (!hasChart())
        return;
    window_.screen().chart().addNote(newNote);
    window_.status().remark(
        QStringLiteral("Drag the note to its place; double-click to edit it; Delete removes it."));
}

void TLY_Edit::mnuItemClearNote_Click() {
    if (hasChart())
        window_.screen().chart().clearNotes();
}

// The items stay enabled when everything was closed.
bool TLY_Edit::hasChart() const {
    Screen& screen = window_.screen();
    if (screen.page() == Screen::Page::chart && !screen.chart().isEmpty())
        return true;
    if (!window_.view().noFile())
        window_.view().redraw();
    return screen.page() == Screen::Page::chart;
}

} // namespace tally
