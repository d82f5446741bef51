// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_File.h"

#include "app/DefaultFolder.h"
#include "app/ForcedReadings.h"
#include "app/Menus.h"
#include "app/TLY_Downloads.h"
#include "app/Views.h"
#include "app/forms/NoticeBar.h"
#include "app/forms/StatusPanels.h"
#include "core/Fileopen.h"
#include "core/Numbers.h"
#include "core/RecentFiles.h"
#include "core/SaveText.h"
#include "core/forms/Words.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tally {

namespace {

const QString savedKey = QStringLiteral("saved");

// "10 of 40 readings (12:15 to 14:30)"; the dates too where they differ. Empty for the whole file.
std::string partText(const Recordings& recordings, int slot, const Range& range) {
    const FileFacts& info = recordings.info(slot);
    if (range.entries() == info.count)
        return {};
    const ReadingTime first = timeOf(info, range.first);
    const ReadingTime last = timeOf(info, range.last);
    const bool oneDay = formatTime(first, "%Y%m%d") == formatTime(last, "%Y%m%d");
    const auto shown = [&](ReadingTime time) {
        return oneDay ? formatTime(time, "%H:%M") : screenTime(time);
    };
    return std::to_string(range.entries()) + " of " + std::to_string(info.count) + " readings (" +
           shown(first) + " to " + shown(last) + ")";
}

// Asks before a part takes the place of an open file that is longer.
bool mayReplace(const Services& services, const std::string& path, const Range& range,
                const std::string& part) {
    for (int slot = 0; slot < Recordings::slotCount; ++slot) {
        const FileFacts& info = services.recordings.info(slot);
        if (info.path.empty() || info.count <= range.entries() || !services.files.same(info.path, path))
            continue;
        return services.prompt.show({.text = info.path + " is open and holds " +
                                             counted(info.count, "reading") + ".\r\nReplace it by " +
                                             (part.empty() ? counted(range.entries(), "reading") : part) +
                                             "?",
                                     .buttons = Buttons::YesNo,
                                     .exclamation = true,
                                     .defaultAnswer = Answer::No}) == Answer::Yes;
    }
    return true;
}

} // namespace

std::string TLY_File::sample() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const QString& place : {program + QStringLiteral("/../share/tallyline/samples"),
                                 program + QStringLiteral("/../../../samples")}) {
        const QFileInfo file(QDir(place), QStringLiteral("feeder-15min.dat"));
        if (file.isFile())
            return file.canonicalFilePath().toStdString();
    }
    return {};
}

Done TLY_File::mnuItemOpen_Click() {
    const auto path =
        services_.prompt.chooseFile({.filter = std::string(openFilter), .folder = parts_.folder.forDialog()});
    return path ? open(*path) : Done();
}

Done TLY_File::mnuMRU_Click(int index) {
    return open(parts_.menus.mruPath(index), recentGone);
}

void TLY_File::openAll(const std::vector<std::string>& paths, Remember remember) {
    for (const std::string& path : paths)
        if (!parts_.dispatcher.attempt([&] { return open(path, {}, remember); }))
            return;
}

Done TLY_File::open(const std::string& path, std::string_view whenClosed, Remember remember) {
    if (const auto slot = Fileopen(services_.recordings, services_.files, path); !slot) {
        Refusal refusal = slot.error();
        const OpenProblem why = slot.error().why;
        if (!whenClosed.empty() && (why == OpenProblem::notFound || why == OpenProblem::cannotRead))
            refusal.text = whenClosed;
        return tl::make_unexpected(refusal);
    }
    if (remember == Remember::yes)
        addRecentFile(services_.settings, path);
    return opened();
}

Done TLY_File::opened() {
    const Recordings& recordings = services_.recordings;
    const int slot = recordings.ginx;
    const FileFacts& info = recordings.info(slot);
    services_.display.opened(recordings, slot);
    parts_.menus.apply(MenuEvent::opened);
    if (info.unit() == 'V')
        parts_.menus.apply(MenuEvent::voltage);
    if (recordings.freeSlot() < 0)
        parts_.menus.apply(MenuEvent::thirdOpened);
    showMru();
    parts_.namesChanged();
    Done shown = parts_.views.showSummary(slot);
    parts_.views.showTogether();
    showIncomplete();
    if (info.notesUnreadable)
        parts_.status.remark(QStringLiteral("The notes of the file could not be read."));
    if (info.unreadable > 0)
        parts_.status.remark(
            words(counted(info.unreadable, "item") +
                  " of the file could not be read as numbers; each counts with its leading number, or 0"));
    return shown;
}

// Stays until the file is closed.
void TLY_File::showIncomplete() {
    const Recordings& recordings = services_.recordings;
    QStringList lines;
    for (int slot = 0; slot < Recordings::slotCount && recordings.isOpen(slot); ++slot) {
        const FileFacts& info = recordings.info(slot);
        if (!info.complete)
            lines.append(words(info.path + ": " + incompleteNotice(info)));
    }
    const QString key = QStringLiteral("incomplete");
    if (lines.isEmpty())
        parts_.notices.remove(key);
    else
        parts_.notices.put(key, lines.join(QLatin1Char('\n')));
}

void TLY_File::showMru() {
    parts_.menus.showMru(recentFiles(services_.settings), services_.recordings.freeSlot() >= 0);
}

void TLY_File::mnuItemClose_Click() {
    if (!parts_.forced.mayLeave() || !parts_.downloads.mayGo())
        return;
    reset();
    showMru();
}

void TLY_File::reset() {
    services_.recordings.closeAll();
    services_.settings.set("Settings", "Vline", "0");
    parts_.views.reset();
    parts_.forced.show();
    parts_.notices.remove(savedKey);
    showIncomplete();
    parts_.namesChanged();
    parts_.menus.apply(MenuEvent::close);
    if (parts_.downloads.pending())
        parts_.menus.apply(MenuEvent::textKept);
}

Done TLY_File::mnuItemSave_Click() {
    Recordings& recordings = services_.recordings;
    if (!recordings.isOpen(0)) {
        savePending();
        return {};
    }
    SelectFile(recordings, services_.chooser);
    const int slot = recordings.ginx;
    if (slot == Recordings::cancelled)
        return {};
    const auto wanted = services_.display.readings(recordings, slot);
    return wanted ? saveReadings(slot, *wanted) : tl::make_unexpected(wanted.error());
}

Done TLY_File::saveWhole(int slot) {
    return saveReadings(slot, services_.recordings.all(slot));
}

// The text that waits since a download; without one what the last save left.
void TLY_File::savePending() {
    if (parts_.downloads.pending()) {
        parts_.downloads.savePending();
        return;
    }
    const std::string text = tally::quoted(services_.recordings.gText);
    const auto path = services_.prompt.chooseFile(parts_.downloads.question(text));
    if (!path)
        return;
    services_.files.write(*path, text);
    saved_(*path);
    parts_.menus.apply(MenuEvent::saved);
}

Done TLY_File::saveReadings(int slot, const Range& wanted) {
    Recordings& recordings = services_.recordings;
    const Range range = rangeToSave(recordings, slot, wanted);
    const std::string part = partText(recordings, slot, range);
    buildText(recordings, slot, range);
    const auto path = services_.prompt.chooseFile({.save = true,
                                                   .filter = std::string(saveFilter),
                                                   .folder = parts_.folder.forDialog(),
                                                   .title = part.empty() ? part : "Save " + part});
    if (!path || !mayReplace(services_, *path, range, part))
        return {};
    services_.files.write(*path, tally::quoted(recordings.gText));
    parts_.forced.saved(slot, range);
    saved_(*path);
    if (part.empty())
        parts_.notices.remove(savedKey);
    else
        parts_.notices.put(savedKey, words(fileNameOf(*path) + " holds " + part + " of " +
                                           fileNameOf(recordings.info(slot).path) + "."));
    parts_.menus.apply(MenuEvent::saved);
    return {};
}

} // namespace tally
