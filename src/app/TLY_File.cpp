// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_File.h"

#include "app/Menus.h"
#include "app/NoticeBar.h"
#include "app/Screen.h"
#include "app/StatusPanels.h"
#include "app/TLY.h"
#include "app/TLY_Downloads.h"
#include "app/TLY_Edit.h"
#include "app/TLY_View.h"
#include "app/forms/Words.h"
#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/RecentFiles.h"
#include "core/SaveText.h"
#include "view/Span.h"
#include "view/forms/Chart.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tally {

TLY_File::TLY_File(TLY& window) : window_(window) {
    QObject::connect(&window.screen(), &Screen::chartMade, &window,
                     [this] { connectChart(window_.screen().chart(), window_.screen().chartBar()); });
}

std::string TLY_File::folder() {
    const std::string folder = window_.services().settings.get("Directory", "default");
    const QString key = QStringLiteral("folder");
    if (folder.empty() || QDir(words(folder)).exists()) {
        window_.notices().remove(key);
        return folder;
    }
    window_.notices().put(key, QStringLiteral("The default directory %1 is not there. File dialogs start in "
                                              "the current one; choose another under Options > Default Dir.")
                                   .arg(words(folder)));
    return {};
}

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

void TLY_File::mnuItemOpen_Click() {
    const auto path =
        window_.services().prompt.chooseFile({.filter = std::string(openFilter), .folder = folder()});
    if (path)
        open(*path);
}

void TLY_File::mnuMRU_Click(int index) {
    open(window_.menus().mruPath(index), recentGone);
}

void TLY_File::openAll(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        if (!open(path))
            return;
    }
}

bool TLY_File::open(const std::string& path, std::string_view whenClosed) {
    const Services& s = window_.services();
    const OpenOutcome outcome = Fileopen(s.recordings, s.files, path);
    if (outcome != OpenOutcome::opened) {
        const bool closed = outcome == OpenOutcome::notFound || outcome == OpenOutcome::cannotRead;
        s.prompt.tell(std::string(closed && !whenClosed.empty() ? whenClosed : openMessage(outcome)));
        return false;
    }
    addRecentFile(s.settings, path);
    opened();
    return true;
}

void TLY_File::opened() {
    const Services& s = window_.services();
    const FileFacts& info = s.recordings.info(s.recordings.ginx);
    forgetViews(s.display);
    Menus& menus = window_.menus();
    menus.apply(MenuEvent::opened);
    if (info.unit() == 'V')
        menus.apply(MenuEvent::voltage);
    if (s.recordings.freeSlot() < 0)
        menus.apply(MenuEvent::thirdOpened);
    showMru();
    window_.updateTitle();
    window_.view().showSummary();
    if (info.notesUnreadable)
        window_.status().remark(QStringLiteral("The notes of the file could not be read."));
    if (info.unreadable > 0)
        window_.status().remark(
            QStringLiteral("%1 item(s) of the file could not be read as numbers; each counts with its "
                           "leading number, or 0")
                .arg(info.unreadable));
}

void TLY_File::showMru() {
    const Services& s = window_.services();
    window_.menus().showMru(recentFiles(s.settings), s.recordings.freeSlot() >= 0);
}

void TLY_File::mnuItemClose_Click() {
    if (!window_.edit().mayLeave())
        return;
    reset();
    showMru();
}

void TLY_File::reset() {
    const Services& s = window_.services();
    s.recordings.closeAll();
    forgetViews(s.display);
    s.display.onePage = false;
    s.display.powerView = false;
    s.settings.set("Settings", "Vline", "0");
    window_.screen().reset();
    window_.status().remark({});
    window_.status().pointer({}, {});
    window_.edit().showForced();
    window_.updateTitle();
    window_.menus().apply(MenuEvent::close);
    if (window_.downloads().pending())
        window_.menus().apply(MenuEvent::textKept);
}

// The applied span, else the whole of the chosen file, whatever the first one covers.
ShownRange TLY_File::saveRange() const {
    const Services& s = window_.services();
    const ShownRange whole{0, s.recordings.info(s.recordings.ginx).count - 1};
    return s.display.spanApplied ? ShownRange{s.recordings.gDatastart, s.recordings.gdataend} : whole;
}

// Leaves the data text of a range in gText and the displayed range as it is.
void TLY_File::buildRange(const ShownRange& range) {
    Recordings& recordings = window_.services().recordings;
    const ShownRange shown{recordings.gDatastart, recordings.gdataend};
    recordings.gDatastart = range.first;
    recordings.gdataend = range.last;
    buildText(recordings);
    recordings.gDatastart = shown.first;
    recordings.gdataend = shown.last;
}

void TLY_File::mnuItemSave_Click() {
    const Services& s = window_.services();
    ShownRange saved;
    if (s.recordings.isOpen(0)) {
        SelectFile(s.recordings, s.chooser);
        if (s.recordings.ginx == Recordings::cancelled)
            return;
        saved = saveRange();
        buildRange(saved);
    }
    const bool download = !s.recordings.isOpen(0) && window_.downloads().pending();
    const std::string text =
        tally::quoted(download ? window_.downloads().pending()->text : s.recordings.gText);
    const auto path =
        s.prompt.chooseFile({.save = true, .filter = std::string(saveFilter), .folder = folder()});
    if (!path)
        return;
    s.files.write(*path, text);
    if (download)
        window_.downloads().pendingSaved();
    window_.edit().saved(s.recordings.ginx, saved.first, saved.last);
    window_.menus().apply(MenuEvent::saved);
}

void TLY_File::mnuItemExit_Click() {
    window_.close();
}

} // namespace tally
