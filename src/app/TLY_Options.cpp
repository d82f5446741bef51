// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Options.h"

#include "app/DefaultFolder.h"
#include "app/Dispatcher.h"
#include "app/forms/FolderChoice.h"
#include "core/Text1252.h"
#include "core/forms/Words.h"

namespace tally {

namespace {

constexpr std::string_view userPrompt = "Enter user name below\r";
constexpr std::size_t textShown = 100;

std::string quoted(std::string_view label, const std::string& value) {
    return std::string(label) + value + "'";
}

} // namespace

TLY_Options::TLY_Options(const Services& services, Dispatcher& dispatcher, DefaultFolder& folder,
                         FolderChoice& choice)
    : services_(services), folder_(folder), choice_(choice) {
    QObject::connect(&choice, &FolderChoice::chosen, &choice, [this, &dispatcher](const QString& chosen) {
        dispatcher.run([&] { Command1_Click(chosen.toStdString()); });
    });
}

void TLY_Options::mnuItemUserID_Click() {
    const Services& s = services_;
    const auto answer =
        s.prompt.input({.text = std::string(userPrompt), .preset = s.settings.get("Security", "userid")});
    if (answer && !answer->empty())
        s.settings.set("Security", "userid", *answer);
}

void TLY_Options::mnuItemDefaultDir_Click() {
    choice_.open(words(folder_.stored()));
}

void TLY_Options::Command1_Click(const std::string& folder) {
    folder_.choose(folder);
}

void TLY_Options::SpecialTest_Click() {
    const Recordings& r = services_.recordings;
    const Display& display = services_.display;
    std::string text = quoted("gDatastart='", std::to_string(display.gDatastart())) +
                       quoted("  gdataend='", std::to_string(display.gdataend())) + "\r\n";
    text += quoted("gtext$='", toUtf8(r.gText.substr(0, textShown))) + "\r\n";
    text += quoted("gDateX='", std::to_string(r.gDateX)) + "\r\n";
    text += quoted("gZoomFlag='", display.gZoomFlag() ? "True" : "False") + "\r\n";
    text += quoted("ginx='", std::to_string(r.ginx));
    constexpr std::string_view labels[] = {"gInfo(0,7)='", "gInfo(1,7)='", "gInfo(2,7)='"};
    for (std::size_t slot = 0; slot < std::size(labels); ++slot)
        text += "\r\n" + quoted(labels[slot], r.gInfo[slot].path);
    services_.prompt.tell(text);
}

} // namespace tally
