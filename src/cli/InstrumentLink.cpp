// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/InstrumentLink.h"

#include "cli/OpenFiles.h"
#include "core/Fault.h"
#include "core/SaveText.h"
#include "link/Instruments.h"
#include "link/MissingMode.h"
#include "link/PortChoice.h"
#include "link/Rescue.h"
#include "platform/Folders.h"
#include "platform/OutputPlace.h"
#include "platform/PortList.h"

#include <QCoreApplication>
#include <cmath>
#include <utility>

namespace tally::cli {

namespace {

constexpr std::uint64_t largestRecording = 205100 + 64; // characters of a reception, and their quotes

// A device, or nothing for a COM port number.
std::string deviceOf(const std::string& port) {
    if (port.find_first_of("/\\") != std::string::npos)
        return port;
    return {};
}

int commPortOf(const std::string& port, const Settings& settings) {
    if (!deviceOf(port).empty())
        return 0;
    if (port.empty())
        return storedCommPort(settings);
    if (port.size() != 1 || port[0] < '1' || port[0] > '8')
        throw WrongUsage("--port: '" + port + "' is neither a COM port, 1 to 8, nor the path of a device");
    return port[0] - '0';
}

// One of the call's own: the window may run another.
std::string simulatedDevice(Context& context) {
    context.needEventLoop();
    return simulatedInstrument() + "-" + std::to_string(QCoreApplication::applicationPid());
}

InstrumentState stateOf(Context& context, const LinkOptions& options) {
    const auto type = typeFromText(options.type);
    if (!type)
        throw WrongUsage("--type: '" + options.type + "' is no instrument type");
    InstrumentState state;
    state.gCommPort = commPortOf(options.port, context.settings());
    state.devicePath = deviceOf(options.port);
    applySelection(state, *type);
    return state;
}

} // namespace

std::shared_ptr<LinkOptions> addLink(CLI::App& command) {
    auto options = std::make_shared<LinkOptions>();
    command.add_option("--port", options->port,
                       "COM port, 1 to 8, or the path of a device (default: the stored port)");
    command.add_option("--type", options->type, "instrument type: its code or display name")->required();
    command.add_flag("--log", options->log, "show the debugging log on standard error");
    return options;
}

std::shared_ptr<double> addWait(CLI::App& command) {
    auto seconds = std::make_shared<double>(0);
    command.add_option("--wait", *seconds, "seconds to wait for the first character (default: no limit)")
        ->check(CLI::Range(0.001, 1e9));
    return seconds;
}

std::int64_t waitFor(double seconds) {
    return seconds > 0 ? static_cast<std::int64_t>(std::ceil(seconds * 1000)) : Waiter::never;
}

Answer LinkPrompt::show(const Message& message) {
    context_.warn(message.title == Message().title ? message.text : message.title + ": " + message.text);
    if (message.buttons == Buttons::YesNo)
        return answers_.yesOrNo;
    return message.buttons == Buttons::OkCancel ? answers_.okOrCancel : Answer::Ok;
}

std::optional<std::string> LinkPrompt::input(const InputQuestion& question) {
    context_.warn(question.text);
    // Only the mode is chosen from a list.
    const bool asksMode = !question.choices.empty();
    std::string& answer = asksMode ? answers_.mode : answers_.initialized;
    if (answer.empty()) {
        context_.warn(asksMode ? "(--mode gives it)" : "(--initialized gives it)");
        return {};
    }
    return std::exchange(answer, std::string());
}

LinkAnswers HeaderOptions::answers(Answer yesOrNo) const {
    if (!initialized.empty() && !parseHeaderTime(initialized))
        throw WrongUsage("--initialized: '" + initialized + "' is no date and time");
    if (!mode.empty() && !modeOfAnswer(mode))
        throw WrongUsage("--mode: '" + mode + "' is no mode letter, a to l");
    return {.yesOrNo = yesOrNo, .initialized = initialized, .mode = mode};
}

std::shared_ptr<HeaderOptions> addHeaderOptions(CLI::App& command) {
    auto options = std::make_shared<HeaderOptions>();
    command.add_option("--initialized", options->initialized,
                       "when the recording began, \"mm-dd-yy hh:mm\", for a header without a time");
    command.add_option("--mode", options->mode, "mode letter, a to l, for a header whose own cannot be read");
    return options;
}

std::optional<std::string> LinkPrompt::chooseFile(const FileQuestion&) {
    return {};
}

void LinkPanel::show(std::string& last, const std::string& text) {
    if (text == last)
        return;
    last = text;
    if (!text.empty())
        context_.warn(text);
}

void LinkPanel::prompt(const std::string& text) {
    if (prompts_)
        show(prompt_, text);
}

void LinkPanel::appendLog(const std::string& text) {
    if (log_)
        context_.warn(text);
}

InstrumentLink::InstrumentLink(Context& context, const LinkOptions& options, LinkAnswers answers)
    : simulated(simulatedDevice(context)),
      line([this, given = deviceOf(options.port)](int commPort) { return device(commPort, given); }),
      waiter(line, context.clock()),
      prompt(context, std::move(answers)),
      panel(context, options.log),
      instrument(stateOf(context, options)),
      journal(folders::data() + "/journal", context.files()),
      context_(context) {
    journal.onProblem([&context](const std::string& text) { context.warn(text); });
}

InstrumentLink::~InstrumentLink() {
    for (const JournalEntry& entry : unsavedReceptions(journal))
        if (entry.id == journal.id())
            context_.warn("What was received is kept: the window offers it at its next start, and "
                          "tallyline-cli journal list names it.");
}

std::string InstrumentLink::device(int commPort, const std::string& given) {
    const std::string path = given.empty() ? devicePath(commPort, context_.settings()) : given;
    if (path != simulatedInstrument())
        return path;
    const bool fixed = instrument.instSelection != autoSelectType;
    simulated.start(fixed ? instrument.instSelection : instrument.instAutoCurrent);
    return simulated.device();
}

int InstrumentLink::refused(const SessionEnd& end) {
    if (waiter.cancelRequested())
        context_.warn("Cancelled");
    else if (end.kind == EndKind::declined)
        context_.warn(end.why.message());
    return status::refused;
}

int InstrumentLink::keep(const SessionResult<PendingDownload>& received, const std::string& path) {
    if (!received)
        return refused(received.error());
    saveRecording(context_, journal, *received, path);
    return status::done;
}

void checkOutput(const std::string& path) {
    try {
        checkOutputPlace(path, largestRecording);
    } catch (const Fault& fault) {
        throw Refused(std::string(fault.what()) + "\n" + path +
                      " could not be written. Nothing was asked of the instrument.");
    }
}

void saveRecording(Context& context, Journal& journal, const PendingDownload& recording,
                   const std::string& path) {
    writeFile(context, path, tally::quoted(recording.text));
    if (recording.id.empty())
        return;
    try {
        journal.mark(recording.id, JournalState::saved);
    } catch (const Fault& fault) {
        context.warn(path + " is saved, but the journal could not note it (" + fault.what() +
                     "): it will offer this recording again.");
    }
}

} // namespace tally::cli
