// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Printing.h"

#include "app/Screen.h"
#include "core/ModeTable.h"
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

void Printing::print(const std::string& title, const std::string& heading, const std::string& text) {
    paper().printWithDialog(report(title, heading, text));
}

void Printing::preview(const std::string& title, const std::string& text) {
    paper().preview(report(title, {}, text));
}

TextReport Printing::shownText() const {
    const TextView& shown = screen_.text();
    std::string title = screen_.displaying();
    if (!title.empty())
        title[0] = upperCase(title[0]);
    return report(title, shown.heading().toStdString(), shown.text().toStdString());
}

void Printing::printShown() {
    if (screen_.page() == Screen::Page::chart)
        paper().printWithDialog(screen_.chart().plot(), screen_.chart().notes(), user());
    else if (screen_.page() == Screen::Page::text)
        paper().printWithDialog(shownText());
}

void Printing::previewShown() {
    if (screen_.page() == Screen::Page::chart)
        paper().preview(screen_.chart().plot(), screen_.chart().notes(), user());
    else if (screen_.page() == Screen::Page::text)
        paper().preview(shownText());
}

} // namespace tally
