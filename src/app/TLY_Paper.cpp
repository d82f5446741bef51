// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Paper.h"

#include "app/Screen.h"
#include "app/TLY.h"
#include "app/TLY_Power.h"
#include "app/TLY_View.h"
#include "core/ModeTable.h"
#include "view/Power.h"
#include "view/Print.h"
#include "view/Printinfo.h"
#include "view/Printpwr.h"
#include "view/Printpwrinfo.h"
#include "view/ShownRange.h"
#include "view/forms/Chart.h"
#include "view/forms/TextView.h"

namespace tally {

namespace {

// What goes to paper leaves the table that is shown, and that exports write, as it is.
class TableKept {
public:
    explicit TableKept(Recordings& recordings) : recordings_(recordings), table_(recordings.gTable) {}
    ~TableKept() { recordings_.gTable = std::move(table_); }
    TableKept(const TableKept&) = delete;
    TableKept& operator=(const TableKept&) = delete;

private:
    Recordings& recordings_;
    std::string table_;
};

} // namespace

TLY_Paper::TLY_Paper(TLY& window) : window_(window) {
    QObject::connect(&window.screen(), &Screen::printText, &window,
                     [this] { window_.dispatcher().run([this] { printShown(); }); });
    QObject::connect(&window.screen(), &Screen::previewText, &window,
                     [this] { window_.dispatcher().run([this] { previewShown(); }); });
}

Paper TLY_Paper::paper() const {
    return {window_.services().prompt, window_.services().files, &window_};
}

TextReport TLY_Paper::report(const std::string& title, const std::string& heading,
                             const std::string& text) const {
    const Services& s = window_.services();
    return {.title = title,
            .heading = heading,
            .text = text,
            .user = s.settings.get("Security", "userid"),
            .date = formatTime(s.clock.localTime(), "%b-%d-%Y")};
}

void TLY_Paper::mnuItemPrintSum_Click() {
    const Services& s = window_.services();
    if (!s.recordings.isOpen(0)) {
        s.prompt.tell(std::string(noFileForPrintSummary));
        return;
    }
    SelectFile(s.recordings, s.chooser);
    if (s.recordings.ginx == Recordings::cancelled)
        return;
    const std::string& path = s.recordings.info(s.recordings.ginx).path;
    paper().printWithDialog(report("Summary of " + fileNameOf(path), {}, Printinfo(s.recordings, s.display)));
}

void TLY_Paper::mnuItemPrintTable_Click() {
    const Services& s = window_.services();
    if (window_.view().noFile())
        return;
    SelectFile(s.recordings, s.chooser);
    if (s.recordings.ginx == Recordings::cancelled)
        return;
    const TableKept kept(s.recordings);
    const std::string heading = Print(s.recordings, s.display);
    const std::string& path = s.recordings.info(s.recordings.ginx).path;
    paper().printWithDialog(report("Readings of " + fileNameOf(path), heading, s.recordings.gTable));
}

void TLY_Paper::mnuItemPrintpwrSum_Click() {
    const Services& s = window_.services();
    if (window_.view().noFile() || !window_.power().ensureDrawn())
        return;
    paper().printWithDialog(
        report("Power summary", {}, Printpwrinfo(s.recordings, s.display, vlineOf(s.settings))));
}

void TLY_Paper::mnuItemPrintPwrTable_Click() {
    const Services& s = window_.services();
    if (window_.view().noFile() || !window_.power().ensureDrawn())
        return;
    const TableKept kept(s.recordings);
    const std::string heading = Printpwr(s.recordings, s.display);
    paper().printWithDialog(report("Power table", heading, s.recordings.gTable));
}

void TLY_Paper::print(const std::string& title, const std::string& text) {
    paper().printWithDialog(report(title, {}, text));
}

void TLY_Paper::preview(const std::string& title, const std::string& text) {
    paper().preview(report(title, {}, text));
}

TextReport TLY_Paper::shownText() const {
    const TextView& shown = window_.screen().text();
    std::string title = window_.screen().displaying();
    if (!title.empty())
        title[0] = upperCase(title[0]);
    return report(title, shown.heading().toStdString(), shown.text().toStdString());
}

void TLY_Paper::printShown() {
    Screen& screen = window_.screen();
    if (screen.page() == Screen::Page::chart)
        paper().printWithDialog(screen.chart().plot(), screen.chart().notes());
    else if (screen.page() == Screen::Page::text)
        paper().printWithDialog(shownText());
}

void TLY_Paper::previewShown() {
    Screen& screen = window_.screen();
    if (screen.page() == Screen::Page::chart)
        paper().preview(screen.chart().plot(), screen.chart().notes());
    else if (screen.page() == Screen::Page::text)
        paper().preview(shownText());
}

} // namespace tally
