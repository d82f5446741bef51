// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Printing.h"

#include "app/Screen.h"
#include "core/ModeTable.h"
#include "view/FilesShown.h"
#include "view/forms/Chart.h"
#include "view/forms/TextView.h"

namespace tally {

std::string Printing::user() const {
    return services_.settings.get("Security", "userid");
}

TextReport Printing::report(const std::string& title, const std::string& heading,
                            const std::string& text) const {
    return {.title = title,
            .heading = heading,
            .text = text,
            .user = user(),
            .date = formatTime(services_.clock.localTime(), "%b-%d-%Y")};
}

// What must be known about the files together, where what is shown comes from all of them.
std::string Printing::remark() const {
    const View view = services_.display.view();
    if (!isPlot(view) && !isPowerView(view))
        return {};
    const auto files = FilesShown::of(services_.recordings, services_.display);
    return files ? files->remark() : std::string();
}

void Printing::print(const std::string& title, const std::string& heading, const std::string& text,
                     const std::string& remark) {
    TextReport made = report(title, heading, text);
    made.remark = remark;
    paper().printWithDialog(made);
}

void Printing::preview(const std::string& title, const std::string& text) {
    paper().preview(report(title, {}, text));
}

TextReport Printing::shownText() const {
    const TextView& shown = screen_.text();
    std::string title = screen_.displaying();
    if (!title.empty())
        title[0] = upperCase(title[0]);
    TextReport made = report(title, shown.heading().toStdString(), shown.text().toStdString());
    made.remark = remark();
    return made;
}

ChartReport Printing::shownChart() const {
    const Chart& chart = screen_.chart();
    return {chart.plot(), chart.notes(), user(), remark(), chart.sight()};
}

void Printing::printShown() {
    if (screen_.page() == Screen::Page::chart)
        paper().printWithDialog(shownChart());
    else if (screen_.page() == Screen::Page::text)
        paper().printWithDialog(shownText());
}

void Printing::previewShown() {
    if (screen_.page() == Screen::Page::chart)
        paper().preview(shownChart());
    else if (screen_.page() == Screen::Page::text)
        paper().preview(shownText());
}

} // namespace tally
