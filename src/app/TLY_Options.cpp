// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Options.h"

#include "app/FolderChoice.h"
#include "app/NoticeBar.h"
#include "app/TLY.h"
#include "app/TLY_File.h"
#include "app/forms/Words.h"
#include "core/Text1252.h"

namespace tally {

namespace {

constexpr std::string_view userPrompt = "Enter user name below\r";
constexpr std::size_t textShown = 100;

std::string quoted(std::string_view label, const std::string& value) {
    return std::string(label) + value + "'";
}

} // namespace

TLY_Options::TLY_Options(TLY& window) : window_(window) {
    QObject::connect(&window.folderChoice(), &FolderChoice::chosen, &window, [this](const QString& folder) {
        window_.dispatcher().run([&] { Command1_Click(folder.toStdString()); });
    });
}

void TLY_Options::mnuItemUserID_Click() {
    const Services& s = window_.services();
    const auto answer =
        s.prompt.input({.text = std::string(userPrompt), .preset = s.settings.get("Security", "userid")});
    if (answer && !answer->empty())
        s.settings.set("Security", "userid", *answer);
}

void TLY_Options::mnuItemDefaultDir_Click() {
    window_.folderChoice().open(words(window_.services().settings.get("Directory", "default")));
}

void TLY_Options::Command1_Click(const std::string& folder) {
    window_.services().settings.set("Directory", "default", folder);
    window_.notices().remove(QStringLiteral("folder"));
}

void TLY_Options::SpecialTest_Click() {
    const Recordings& r = window_.services().recordings;
    std::string text = quoted("gDatastart='", std::to_string(r.gDatastart)) +
                       quoted("  gdataend='", std::to_string(r.gdataend)) + "\r\n";
    text += quoted("gtext$='", toUtf8(r.gText.substr(0, textShown))) + "\r\n";
    text += quoted("gDateX='", std::to_string(r.gDateX)) + "\r\n";
    text += quoted("gZoomFlag='", r.gZoomFlag ? "True" : "False") + "\r\n";
    text += quoted("ginx='", std::to_string(r.ginx));
    constexpr std::string_view labels[] = {"gInfo(0,7)='", "gInfo(1,7)='", "gInfo(2,7)='"};
    for (std::size_t slot = 0; slot < std::size(labels); ++slot)
        text += "\r\n" + quoted(labels[slot], r.gInfo[slot].path);
    window_.services().prompt.tell(text);
}

} // namespace tally
