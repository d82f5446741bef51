// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Json.h"
#include "cli/OpenFiles.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "core/Text1252.h"

namespace tally::cli {

namespace {

Json factsOf(const Recordings& recordings) {
    const FileFacts& info = recordings.info(0);
    const ModeRow& mode = modeRow(info.modeLetter);
    return {{"mode", std::string(1, info.modeLetter)},
            {"serial", toUtf8(info.serial)},
            {"start", screenTime(info.start)},
            {"count", info.count},
            {"type", toUtf8(std::string(1, info.typeLetter))},
            {"max", inUnits(info.largest)},
            {"min", inUnits(info.smallest)},
            {"path", info.path},
            {"range", info.rangeWord()},
            {"headerTime", screenTime(info.headerTime)},
            {"forced", info.forced ? 1 : 0},
            {"header", toUtf8(info.header)},
            {"form", toUtf8(std::string(1, info.form))},
            {"interval", mode.minutes},
            {"whenFull", std::string(mode.whenFull)},
            {"notes", recordings.gNotes[0]},
            {"unreadable", info.unreadable},
            {"complete", info.complete}};
}

std::string textOf(const Recordings& recordings) {
    const FileFacts& info = recordings.info(0);
    const ModeRow& mode = modeRow(info.modeLetter);
    const auto& notes = recordings.gNotes[0];
    const std::string unit(1, info.unit());
    std::string text = "File:     " + info.path + "\n";
    text += "Type:     " + toUtf8(info.header.substr(0, 3)) + "   Ser. " + toUtf8(info.serial) + "\n";
    text += std::string("Mode:     ") + info.modeLetter + ", " +
            (isMinMaxAvg(info.modeLetter) ? "Min/Max/Avg" : "Average") + ", " + std::to_string(mode.minutes) +
            " min interval, " + std::string(mode.whenFull) + ", range " + info.rangeWord() + "\n";
    text += "Start:    " + screenTime(info.start) + "\n";
    text += "End:      " + screenTime(timeOf(info, info.count - 1)) + "\n";
    text += "Readings: " + std::to_string(info.count) + "\n";
    text += "Min:      " + plainTenths(info.smallest) + unit + "   Max: " + plainTenths(info.largest) + unit +
            "\n";
    text += "Location: " + notes[0] + "\nCircuit:  " + notes[1] + "\nName:     " + notes[2] +
            "\nOther:    " + notes[3];
    return text + "\n";
}

} // namespace

void addInfo(CLI::App& program, Context& shared) {
    struct Options {
        std::shared_ptr<std::string> file;
        std::shared_ptr<bool> json;
    };
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(program, shared, "info", "the facts of a data file", [options](Context& context) {
            const OpenFiles open = openFiles(context, {*options->file});
            if (*options->json)
                outJson(context, factsOf(open.recordings));
            else
                context.out(textOf(open.recordings));
            return 0;
        });
    options->file = addFile(command);
    options->json = addJson(command);
}

} // namespace tally::cli
