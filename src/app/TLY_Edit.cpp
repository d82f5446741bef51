// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Edit.h"

#include "app/ForcedReadings.h"
#include "app/Menus.h"
#include "app/Views.h"
#include "app/forms/EditNotes.h"
#include "app/forms/ForceRdgs.h"
#include "core/ForceReadings.h"
#include "core/NotesFile.h"
#include "core/Numbers.h"

namespace tally {

namespace {

constexpr const char* notesError =
    "Software error in mnuItemNotes_Click: \r\n   A case that couldn't happen, happened.";

bool isSlot(int ginx) {
    return ginx >= 0 && ginx < Recordings::slotCount;
}

ForceWhich whichOf(const ForceRdgs& form) {
    if (form.leftmost())
        return ForceWhich::leftmost;
    return form.rightmost() ? ForceWhich::rightmost : ForceWhich::all;
}

} // namespace

Done TLY_Edit::mnuItemNotes_Click() {
    Recordings& recordings = services_.recordings;
    SelectFile(recordings, services_.chooser);
    const int slot = recordings.ginx;
    if (slot == Recordings::cancelled)
        return {};
    if (slot == Recordings::noFile)
        return needFile(recordings);
    if (!isSlot(slot))
        return refuse(notesError);
    EditNotes form(recordings.info(slot).path, recordings.gNotes[std::size_t(slot)], window_);
    // When the notes cannot be written the form comes back with what was typed.
    while (form.exec() == QDialog::Accepted) {
        if (dispatcher_.attempt([&] { saveNotes(recordings, services_.files, slot, form.notes()); })) {
            views_.renew();
            break;
        }
    }
    return {};
}

Done TLY_Edit::mnuItemForceRdg_Click() {
    Recordings& recordings = services_.recordings;
    if (Done file = needFile(recordings); !file)
        return file;
    // After a cancelled list no file is current; the dialog's answer says so.
    const int slot = recordings.ginx;
    const std::string file = isSlot(slot) ? recordings.info(slot).path : "";
    const auto range = isSlot(slot) ? services_.display.readings(recordings, slot) : Range{};
    if (!range)
        return tl::make_unexpected(range.error());
    ForceRdgs form(file, plain(lastValue_), std::to_string(range->entries()), window_);
    if (form.exec() != QDialog::Accepted)
        return {};
    const auto count = forceReadings(recordings, slot, *range, form.value(), whichOf(form), lastValue_);
    if (!count)
        return tl::make_unexpected(count.error());
    menus_.apply(MenuEvent::forced);
    forced_.forced(slot);
    views_.renew();
    return {};
}

} // namespace tally
