// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ForcedReadings.h"

#include "app/forms/NoticeBar.h"
#include "core/ForceReadings.h"
#include "core/Numbers.h"
#include "core/forms/Words.h"

namespace tally {

namespace {

const QString noticeKey = QStringLiteral("forced");

} // namespace

void ForcedReadings::forced(int slot) {
    forcings_.push_back(slot);
    show();
}

void ForcedReadings::undo() {
    if (forcings_.empty())
        return;
    const int slot = forcings_.back();
    forcings_.pop_back();
    undoForcing(services_.recordings, slot);
    show();
    changed();
}

void ForcedReadings::saved(int slot, const Range& range) {
    readingsSaved(services_.recordings, slot, range);
    show();
}

void ForcedReadings::show() {
    const Recordings& recordings = services_.recordings;
    std::erase_if(forcings_, [&](int slot) { return !recordings.isOpen(slot); });
    QStringList texts;
    int unsaved = -1;
    for (int slot = 0; slot < Recordings::slotCount; ++slot) {
        const int count = unsavedReadings(recordings, slot);
        if (count == 0)
            continue;
        if (unsaved < 0)
            unsaved = slot;
        const QString name = words(fileNameOf(recordings.info(slot).path));
        texts.append((recordings.info(slot).forced ? QStringLiteral("%1: %2, not saved yet.")
                                                   : QStringLiteral("%1: %2 taken back, not saved yet."))
                         .arg(name, words(counted(count, recordings.info(slot).forced ? "forced reading"
                                                                                      : "reading"))));
    }
    if (texts.isEmpty()) {
        notices_.remove(noticeKey);
        return;
    }
    std::vector<NoticeAction> actions;
    if (!forcings_.empty())
        actions.push_back({QStringLiteral("Undo (Ctrl+Z)"), [this] { dispatcher_.run([this] { undo(); }); }});
    actions.push_back({QStringLiteral("Save As..."),
                       [this, unsaved] { dispatcher_.run([this, unsaved] { return saveWhole(unsaved); }); }});
    notices_.put(noticeKey, texts.join(QLatin1Char(' ')), actions, false);
}

bool ForcedReadings::mayLeave() {
    std::string files;
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        if (unsavedReadings(services_.recordings, slot) > 0)
            files += "  " + fileNameOf(services_.recordings.info(slot).path) + "\r\n";
    if (files.empty())
        return true;
    return services_.prompt.show({.text = "Forced readings of these files were not saved:\r\n" + files +
                                          "Close without saving them?",
                                  .buttons = Buttons::YesNo,
                                  .exclamation = true,
                                  .defaultAnswer = Answer::No}) == Answer::Yes;
}

} // namespace tally
