// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/InstrumentLink.h"

#include "cli/OpenFiles.h"
#include "core/SaveText.h"
#include "link/Instruments.h"
#include "link/PortChoice.h"
#include "link/Rescue.h"
#include "platform/Folders.h"
#include "platform/PortList.h"

#include <QCoreApplication>
#include <cmath>
#include <utility>

namespace tally::cli {

namespace {

// A device, or nothing for a COM port number.
std::string deviceOf(const std::string& port) {
    if (port.find_first_of("/\\") != std::string::npos)
        return port;
    return {};
}

int commPortOf(const std::string& port, const Settings& settings) {
    if (port.empty() || !deviceOf(port).empty())
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
    told_.insert(message.text);
    context_.warn(message.title == Message().title ? message.text : message.title + ": " + message.text);
    return message.buttons == Buttons::YesNo ? yesOrNo_ : Answer::Ok;
}

std::optional<std::string> LinkPrompt::input(const InputQuestion& question) {
    context_.warn(question.text);
    if (initialized_.empty()) {
        context_.warn("(--initialized gives it)");
        return {};
    }
    return std::exchange(initialized_, std::string());
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

InstrumentLink::InstrumentLink(Context& context, const LinkOptions& options, Answer yesOrNo)
    : simulated(simulatedDevice(context)),
      line([this, given = deviceOf(options.port)](int commPort) { return device(commPort, given); }),
      waiter(line, context.clock()),
      prompt(context, yesOrNo),
      panel(context, options.log),
      instrument(stateOf(context, options)),
      journal(folders::data() + "/journal", context.files()),
      session(line, waiter, prompt, panel, instrument, journal, gErrorCallPoint),
      context_(context) {
    journal.onProblem([&context](const std::string& text) { context.warn(text); });
}

InstrumentLink::~InstrumentLink() {
    for (const JournalEntry& entry : unsavedReceptions(journal))
        if (entry.id == journal.id())
            context_.warn("What was received is kept: the window offers it at its next start.");
}

std::string InstrumentLink::device(int commPort, const std::string& given) {
    const std::string path = given.empty() ? devicePath(commPort, context_.settings()) : given;
    if (path != simulatedInstrument())
        return path;
    const bool fixed = instrument.instSelection != autoSelectType;
    simulated.start(fixed ? instrument.instSelection : instrument.instAutoCurrent);
    return simulated.device();
}

int InstrumentLink::refused() {
    if (waiter.cancelRequested())
        context_.warn("Cancelled");
    else if (!line.problem().empty() && !prompt.told(line.problem()))
        context_.warn(line.problem());
    return status::refused;
}

int InstrumentLink::keep(const std::optional<PendingDownload>& received, const std::string& path) {
    if (!received)
        return refused();
    writeFile(context_, path, tally::quoted(received->text));
    if (!received->id.empty())
        journal.mark(received->id, JournalState::saved);
    return status::done;
}

} // namespace tally::cli
