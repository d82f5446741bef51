// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as a window: title, place, drops, shortcuts, closing.
#include "app/Commands.h"
#include "app/Menus.h"
#include "app/Screen.h"
#include "app/TLY.h"
#include "app/forms/NoticeBar.h"
#include "app/forms/StartPage.h"
#include "core/forms/Words.h"
#include "view/forms/Chart.h"
#include "view/forms/TextView.h"

#include <QAction>
#include <QCloseEvent>
#include <QMimeData>
#include <QTimer>

namespace tally {

namespace {

constexpr const char* section = "Window";
constexpr const char* key = "geometry";

// File names are bytes, which need not be characters.
std::vector<std::string> dataFiles(const QMimeData& data) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths.push_back(
                QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString());
    return paths;
}

} // namespace

void TLY::addShortcuts() {
    const auto add = [this](const char* name, const QKeySequence& keys, auto run) {
        auto* action = new QAction(this);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcut(keys);
        addAction(action);
        connect(action, &QAction::triggered, this, run);
    };
    add("printShown", QKeySequence::Print,
        [this] { dispatcher_.run([this] { commands_->printing.printShown(); }); });
    add("copyShown", QKeySequence::Copy, [this] { commands_->chart.copyShown(); });
    add("undoForced", QKeySequence::Undo, [this] { dispatcher_.run([this] { commands_->forced.undo(); }); });
}

void TLY::connectStartPage() {
    StartPage& start = screen_->start();
    start.setSamples(!TLY_File::sample().empty());
    start.setDownload(menus_->item("mnuItemDownload").isEnabled());
    start.setSimulated(commands_->instrument.hasSimulated());
    connect(&start, &StartPage::findWanted, &menus_->item("mnuItemFind"), &QAction::trigger);
    connect(&start, &StartPage::simulatedWanted, this,
            [this] { dispatcher_.run([this] { commands_->instrument.trySimulated(); }); });
    connect(
        &start, &StartPage::recentWanted, this,
        [this](const QString& path) { openFiles({path.toStdString()}); }, Qt::QueuedConnection);
    connect(&start, &StartPage::aboutToShow, this, [this] { commands_->start.refresh(); });
    commands_->downloads.onChange([this] { commands_->start.refresh(); });
    connect(&start, &StartPage::openWanted, &menus_->item("mnuItemOpen"), &QAction::trigger);
    connect(&start, &StartPage::downloadWanted, &menus_->item("mnuItemDownload"), &QAction::trigger);
    start.setArchive(services_.archive != nullptr);
    connect(&start, &StartPage::archiveWanted, &menus_->item("mnuItemArchive"), &QAction::trigger);
    connect(&start, &StartPage::helpWanted, &menus_->item("mnuItemHelp"), &QAction::trigger);
    connect(&start, &StartPage::sampleWanted, this, [this] { openFiles({TLY_File::sample()}, true); });
    commands_->downloads.onOpen([this](const std::string& path) { openFiles({path}); });
}

void TLY::openFiles(const std::vector<std::string>& paths, bool plot) {
    dispatcher_.run([&] { commands_->file.openAll(paths); });
    if (plot && services_.recordings.isOpen(0))
        dispatcher_.run([this] { return commands_->view.mnuItemViewPlot_Click(); });
}

void TLY::updateTitle() {
    QStringList names;
    if (services_.display.view() == View::chartFile)
        names.append(words(screen_->displaying()));
    else
        for (int slot = 0; slot < Recordings::slotCount; ++slot)
            if (services_.recordings.isOpen(slot))
                names.append(nameInTitle(services_.recordings.info(slot).path));
    setWindowTitle(names.isEmpty() ? QStringLiteral("Tallyline")
                                   : names.join(QStringLiteral(", ")) + QStringLiteral(" - Tallyline"));
}

QString TLY::nameInTitle(const std::string& path) const {
    const QString name = words(fileNameOf(path));
    return commands_ && commands_->archive.isCopy(path) ? name + QStringLiteral(" (from the archive)") : name;
}

void TLY::setHelpFile(const QString& path) {
    commands_->help.setHelpFile(path);
}

void TLY::reportSettings(const std::string& text) {
    notices_->put(QStringLiteral("settings"), words(text));
}

void TLY::placeWindow() {
    const QByteArray place =
        QByteArray::fromBase64(QByteArray::fromStdString(services_.settings.get(section, key)));
    if (place.isEmpty() || !restoreGeometry(place))
        resize(1000, 700);
}

bool TLY::event(QEvent* event) {
    const bool done = QMainWindow::event(event);
    // The command line may have received something meanwhile.
    if (painted_ && event->type() == QEvent::WindowActivate && !dispatcher_.running())
        commands_->downloads.lookAgain();
    if (!painted_ && event->type() == QEvent::Paint) {
        painted_ = true;
        QTimer::singleShot(0, this, [this] {
            Q_EMIT firstFrame();
            commands_->downloads.showNotices();
        });
    }
    return done;
}

// A question whose save fails leaves everything as it is.
bool TLY::mayClose() {
    bool may = false;
    dispatcher_.run([&] {
        may = commands_->forced.mayLeave() && commands_->downloads.mayGo() && commands_->archive.mayLeave();
    });
    return may;
}

void TLY::journalChanged() {
    commands_->downloads.showNotices();
}

void TLY::closeEvent(QCloseEvent* event) {
    // A session with an instrument ends first.
    if (dispatcher_.running())
        services_.session.requestCancel();
    if (dispatcher_.running() || !mayClose()) {
        event->ignore();
        return;
    }
    services_.settings.set(section, key, saveGeometry().toBase64().toStdString());
    commands_->archive.close();
    event->accept();
}

void TLY::dragEnterEvent(QDragEnterEvent* event) {
    if (!dispatcher_.running() && !dataFiles(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void TLY::dropEvent(QDropEvent* event) {
    const auto paths = dataFiles(*event->mimeData());
    event->acceptProposedAction();
    // The one who dragged must not wait for our boxes.
    QTimer::singleShot(0, this, [this, paths] { openFiles(paths); });
}

} // namespace tally
