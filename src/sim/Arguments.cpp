// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Arguments.h"

#include "core/ModeTable.h"
#include "sim/Script.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <map>

namespace tally::sim {

namespace {

const char* const introduction =
    "tallyline-sim pretends to be a load recorder at the end of a serial cable.\n"
    "\n"
    "Start it, read the device that it prints after READY, and give that device to\n"
    "Tallyline as a COM port, or to tallyline-cli with --port. Each time the port is\n"
    "opened, the cable goes into the instrument half a second later and the\n"
    "instrument sends its memory, at the pace of its baud rate. Ctrl+C ends it.\n";

const char* const examples =
    "Try this with a class:\n"
    "  tallyline-sim --type 8                        an instrument at 115,200 baud; let\n"
    "                                                Auto Select find it from 9,600\n"
    "  tallyline-sim --fault low-battery             the low battery warning\n"
    "  tallyline-sim --fault stall=700:3000          a download that stalls\n"
    "  tallyline-sim --fault damaged-line=3 --fault no-ctrl-z\n"
    "                                                a download with errors\n"
    "  tallyline-sim --fault cable=5000              the cable is pulled out too early\n"
    "  tallyline-sim --battery-failed --interval 1 --full stop\n"
    "                                                a recording to be recovered\n"
    "  tallyline-sim --fault noise=40 --seed 3       a line full of noise\n"
    "  tallyline-sim --plug enter                    you say when the cable goes in\n"
    "\n"
    "To send in a problem: run with --record FILE; whoever gets FILE sees the same\n"
    "characters at the same pace with --replay FILE.\n";

std::string models() {
    std::string text;
    for (int type = firstType; type <= lastType; ++type)
        text += "  " + std::string(type < 10 ? " " : "") + std::to_string(type) + "  " +
                std::string(modelOf(type).name) + ", " + std::to_string(modelOf(type).baud) + " baud, " +
                std::to_string(modelOf(type).samples) + " readings\n";
    return text;
}

std::string footer() {
    return "Types:\n" + models() +
           "\nFaults (--fault, may be repeated; characters count from the first one\n" +
           "after the cable went in):\n" + faultHelp() + "\nSteps of a script (--script), one a line:\n" +
           scriptHelp() + "\n" + examples;
}

// The options as they are written; numbers are turned into a setup afterwards.
struct Raw {
    int type = 7;
    int baud = 0;
    int samples = 0;
    int count = -1;
    int interval = 15;
    std::string record = "avg";
    std::string full = "loop";
    std::string mode;
    std::string code;
    std::string clock;
    std::string layout = "current";
    std::string wrongRate = "silence";
    std::string plug = "open";
    std::string beforeAnswer = "nothing";
    std::string reset = "ignored";
    std::vector<std::string> faults;
    double volts = 0;
    double erase = 2;
    double answer = 0.05;
    bool stopped = false;
};

void describeMemory(CLI::App& app, Raw& raw, InstrumentSetup& setup) {
    app.add_option("--type", raw.type, "Instrument type, 1 to 10 (list below)")
        ->check(CLI::Range(firstType, lastType))
        ->capture_default_str();
    app.add_option("--baud", raw.baud, "Baud rate, instead of the type's")->check(CLI::Range(300, 230400));
    app.add_option("--samples", raw.samples, "Readings that fit into the memory, instead of the type's")
        ->check(CLI::Range(1, 100000));
    app.add_option("--code", raw.code, "The three characters that begin its texts, instead of the type's");
    app.add_option("--serial", setup.serial, "Serial number, four characters")->capture_default_str();
    app.add_option("--count", raw.count, "Readings that it holds at the start (default: as many as fit)")
        ->check(CLI::Range(0, 100000));
    app.add_option("--interval", raw.interval, "Minutes per interval: 15, 5 or 1")
        ->check(CLI::IsMember({15, 5, 1}))
        ->capture_default_str();
    app.add_option("--record-as", raw.record, "What it records per interval: avg, or mma for Min/Max/Avg")
        ->check(CLI::IsMember({"avg", "mma"}))
        ->capture_default_str();
    app.add_option("--full", raw.full, "When the memory is full: loop or stop")
        ->check(CLI::IsMember({"loop", "stop"}))
        ->capture_default_str();
    app.add_option("--mode", raw.mode, "Mode letter, instead of the three choices above; any one character");
    app.add_flag("--stopped", raw.stopped, "The recording has stopped");
    app.add_flag("--low", setup.low, "Readings in tenths, with one decimal");
    app.add_option("--clock", raw.clock,
                   "The instrument's clock, \"mm-dd-yy hh:mm\" (default: the computer's)");
    app.add_option("--layout", raw.layout,
                   "Header: current, older (time at column 47) or brief (44 columns, as for a recovery)")
        ->check(CLI::IsMember({"current", "older", "brief"}))
        ->capture_default_str();
    app.add_flag("--battery-failed", setup.batteryFailed,
                 "The battery has failed: brief header, and its time is when the recording began");
    app.add_option("--volts", raw.volts, "Battery voltage")->check(CLI::Range(0.15, 15.1));
}

void describeInitialisation(CLI::App& app, Raw& raw, InstrumentSetup& setup) {
    app.add_option("--answer-time", raw.answer, "Seconds until the command to initialise is answered")
        ->check(CLI::Range(0.0, 3600.0))
        ->capture_default_str();
    app.add_option(
           "--before-answer", raw.beforeAnswer,
           "What it still sends of its memory before that answer: nothing, line (so that the memory's\n"
           "own \"T:\" comes first) or memory (all of it)")
        ->check(CLI::IsMember({"nothing", "line", "memory"}))
        ->capture_default_str();
    app.add_flag("--strict", setup.strict, "Takes the 18 characters of the settings only after its answer");
    app.add_option("--erase-time", raw.erase, "Seconds that erasing takes")
        ->check(CLI::Range(0.0, 3600.0))
        ->capture_default_str();
}

void describeLine(CLI::App& app, Raw& raw, Arguments& arguments) {
    auto& setup = arguments.setup;
    app.add_option(
           "--plug", raw.plug,
           "When the cable goes in: open (0.5 s after the port was opened), a number (so many seconds\n"
           "after), every:N (again N seconds after each text), enter (when you press Enter)")
        ->capture_default_str();
    app.add_option("--fault", raw.faults, "Something that is wrong (list below)");
    app.add_option("--wrong-rate", raw.wrongRate,
                   "What the computer gets at another baud rate: silence or rubbish")
        ->check(CLI::IsMember({"silence", "rubbish"}))
        ->capture_default_str();
    app.add_option("--dtr", arguments.dtr,
                   "A pipe that says how the DTR line stands, 1 high, 0 low (a pseudo-terminal has none)");
    app.add_option("--reset", raw.reset,
                   "What dropping DTR does: ignored, restarts (silent while it is low, then from the\n"
                   "beginning) or excites (sends while it is low, and from the beginning after)")
        ->check(CLI::IsMember({"ignored", "restarts", "excites"}))
        ->capture_default_str();
    app.add_option("--seed", setup.seed, "Another number draws other noise and rubbish")
        ->capture_default_str();
    app.add_option("--speed", setup.speed,
                   "Pace: 1 as on a real line, 10 ten times as fast, 0 without pauses")
        ->check(CLI::Range(0.0, 1e6))
        ->capture_default_str();
}

void describeProgram(CLI::App& app, Arguments& arguments) {
    app.add_option("--link", arguments.link, "Makes a symbolic link to the device at this path");
    auto* record =
        app.add_option("--record", arguments.record, "Writes all that is sent and received into this file");
    app.add_flag("--overwrite", arguments.overwrite, "Replaces the record that is there")->needs(record);
    auto* replay = app.add_option("--replay", arguments.replay, "Plays such a file back instead");
    app.add_option("--script", arguments.script, "Follows the steps in this file")->excludes(replay);
    app.add_flag("--loop", arguments.loop,
                 "Begins again after a script or a replay, and after the adapter was pulled out");
    app.add_flag("--once", arguments.once, "Ends when a whole text was sent and the port is closed");
    app.add_flag("--quiet", arguments.quiet, "Says nothing but READY");
    app.add_flag("--with-parent", arguments.withParent, "Ends with the program that started it");
}

char modeLetter(const Raw& raw, bool blankMode) {
    if (!raw.mode.empty())
        return raw.mode[0];
    if (blankMode)
        return ' ';
    const int letter = (raw.interval == 15  ? 0
                        : raw.interval == 5 ? 1
                                            : 2) +
                       (raw.full == "stop" ? 3 : 0) + (raw.record == "mma" ? 6 : 0);
    return static_cast<char>('a' + letter);
}

void readPlug(const std::string& text, Arguments& arguments) {
    InstrumentSetup& setup = arguments.setup;
    if (text == "open")
        return;
    if (text == "enter") {
        setup.plugOnOpen = false;
        arguments.enter = true;
        return;
    }
    const bool every = text.starts_with("every:");
    double seconds = 0;
    if (!CLI::detail::lexical_cast(every ? text.substr(6) : text, seconds) ||
        !(seconds >= 0 && seconds <= 1e6))
        throw CLI::ValidationError("--plug", "expected open, a number of seconds, every:N or enter");
    (every ? setup.repeatAfter : setup.plugDelay) = static_cast<std::int64_t>(seconds * 1000);
}

void fillConduct(const Raw& raw, InstrumentSetup& setup) {
    if (raw.beforeAnswer != "nothing")
        setup.beforeAnswer = raw.beforeAnswer == "line" ? BeforeAnswer::line : BeforeAnswer::memory;
    if (raw.reset != "ignored")
        setup.reset = raw.reset == "restarts" ? Reset::restarts : Reset::excites;
}

void fill(const Raw& raw, Arguments& arguments, ReadingTime clock, int seconds) {
    InstrumentSetup& setup = arguments.setup;
    const Model& model = modelOf(raw.type);
    setup.type = raw.type;
    setup.code = raw.code.empty() ? std::string(model.code) : raw.code;
    setup.baud = raw.baud > 0 ? raw.baud : model.baud;
    setup.clock = clock;
    setup.clockSeconds = seconds;
    if (!raw.clock.empty()) {
        const auto time = parseHeaderTime(raw.clock);
        if (!time)
            throw CLI::ValidationError("--clock", "expected \"mm-dd-yy hh:mm\"");
        setup.clock = *time;
        setup.clockSeconds = 0;
    }
    const int samples = raw.samples > 0 ? raw.samples : model.samples;
    const char mode = modeLetter(raw, model.blankMode);
    const bool known = mode == ' ' || isMode(lowerCase(mode));
    setup.memory =
        filledMemory(known ? mode : 'a', samples, raw.count < 0 ? samples : raw.count, setup.clock);
    setup.modeShown = known ? '\0' : mode;
    setup.memory.stopped = raw.stopped;
    setup.memory.stoppedAt = setup.clock;
    if (raw.layout != "current")
        setup.layout = raw.layout == "older" ? Layout::older : Layout::brief;
    if (setup.batteryFailed)
        setup.layout = Layout::brief;
    if (raw.volts > 0)
        setup.battery = static_cast<int>(std::lround((raw.volts - 0.15) / 0.003656));
    setup.rubbishAtWrongRate = raw.wrongRate == "rubbish";
    setup.eraseTime = static_cast<std::int64_t>(raw.erase * 1000);
    setup.answerTime = static_cast<std::int64_t>(raw.answer * 1000);
    fillConduct(raw, setup);
    readPlug(raw.plug, arguments);
    for (const std::string& text : raw.faults) {
        try {
            addFault(setup.faults, text);
        } catch (const std::invalid_argument& problem) {
            throw CLI::ValidationError("--fault", problem.what());
        }
    }
}

} // namespace

std::optional<Arguments> parseArguments(int argc, char** argv, ReadingTime clock, int seconds, int& status) {
    CLI::App app(introduction, "tallyline-sim");
    Raw raw;
    Arguments arguments;
    describeMemory(app, raw, arguments.setup);
    describeInitialisation(app, raw, arguments.setup);
    describeLine(app, raw, arguments);
    describeProgram(app, arguments);
    app.footer(footer());
    app.set_version_flag("--version", std::string("tallyline-sim ") + TALLY_VERSION);
    try {
        app.parse(argc, argv);
        fill(raw, arguments, clock, seconds);
        return arguments;
    } catch (const CLI::ParseError& error) {
        constexpr int wrongUsage = 2;
        status = app.exit(error) == 0 ? 0 : wrongUsage;
        return std::nullopt;
    }
}

} // namespace tally::sim
