// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Arguments.h"
#include "sim/Replay.h"
#include "sim/Script.h"
#include "sim/Wire.h"

#include <chrono>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tally;
using namespace tally::sim;

Wire* running = nullptr;
volatile std::sig_atomic_t stopRequested = 0;

extern "C" void onSignal(int) {
    stopRequested = 1;
    if (running != nullptr)
        running->stop();
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (!in)
        throw std::runtime_error(path + " cannot be read");
    return bytes.str();
}

void say(const std::string& text) {
    std::cerr << text << std::endl;
}

struct Made {
    std::unique_ptr<Peer> peer;
    Instrument* instrument = nullptr; // not in a replay
};

Made makePeer(const Arguments& arguments) {
    Made made;
    if (!arguments.replay.empty()) {
        made.peer = std::make_unique<Replay>(parseRecord(readFile(arguments.replay)), arguments.setup.speed);
    } else if (!arguments.script.empty()) {
        auto scripted =
            std::make_unique<ScriptedInstrument>(arguments.setup, parseScript(readFile(arguments.script)));
        made.instrument = &scripted->instrument;
        made.peer = std::move(scripted);
    } else {
        auto instrument = std::make_unique<Instrument>(arguments.setup);
        made.instrument = instrument.get();
        made.peer = std::move(instrument);
    }
    if (made.instrument != nullptr && !arguments.quiet)
        made.instrument->narrate = say;
    return made;
}

// One life of a device: until the program is stopped, the adapter pulled out, the script at its end.
Wire::End live(const Arguments& arguments, int dtr, Recorder* recorder, std::chrono::milliseconds age) {
    const Made made = makePeer(arguments);
    Pty pty;
    if (!arguments.link.empty())
        pty.link(arguments.link);
    Wire wire(*made.peer, pty);
    bool open = false;
    wire.onEvent = [&](Event event) {
        if (event.kind == Event::Kind::opened || event.kind == Event::Kind::closed)
            open = event.kind == Event::Kind::opened;
        event.time += age.count();
        if (recorder != nullptr)
            recorder->write(event);
    };
    if (arguments.once)
        wire.done = [&] { return !open && made.instrument != nullptr && made.instrument->completed() > 0; };
    if (arguments.enter)
        wire.keyboard = STDIN_FILENO;
    wire.dtr = dtr;
    running = &wire;
    std::cout << "READY " << pty.path() << std::endl;
    if (stopRequested != 0)
        wire.stop();
    const Wire::End end = wire.run();
    running = nullptr;
    return end;
}

// -1 without a pipe. Opened for both ways, it never comes to an end.
int openDtr(const std::string& path) {
    if (path.empty())
        return -1;
    const int pipe = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    struct stat facts = {};
    if (pipe < 0 || fstat(pipe, &facts) != 0 || !S_ISFIFO(facts.st_mode))
        throw std::runtime_error(path + " is no pipe that can be opened");
    return pipe;
}

int run(const Arguments& arguments) {
    const int dtr = openDtr(arguments.dtr);
    std::ofstream file;
    std::unique_ptr<Recorder> recorder;
    if (!arguments.record.empty()) {
        if (!arguments.overwrite && std::filesystem::is_regular_file(arguments.record))
            throw std::runtime_error(arguments.record + " is there already; --overwrite replaces it");
        file.open(arguments.record);
        if (!file)
            throw std::runtime_error(arguments.record + " cannot be written");
        recorder = std::make_unique<Recorder>(file);
    }
    const auto start = std::chrono::steady_clock::now();
    for (;;) {
        const auto age = std::chrono::steady_clock::now() - start;
        const Wire::End end =
            live(arguments, dtr, recorder.get(), std::chrono::duration_cast<std::chrono::milliseconds>(age));
        if (end == Wire::End::gone && !arguments.quiet)
            say("The adapter was pulled out of the computer.");
        if (end == Wire::End::stopped || !arguments.loop)
            break;
    }
    if (recorder && !file)
        throw std::runtime_error(arguments.record + " could not be written to its end");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::time_t seconds = std::time(nullptr);
    std::tm local = {};
    localtime_r(&seconds, &local);
    const ReadingTime clock =
        toReadingTime({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min});
    int status = 0;
    const auto arguments = parseArguments(argc, argv, clock, local.tm_sec, status);
    if (!arguments)
        return status;
    if (arguments->withParent)
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    struct sigaction action = {};
    action.sa_handler = onSignal;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaction(signal, &action, nullptr);
    try {
        return run(*arguments);
    } catch (const std::exception& problem) {
        std::cerr << "tallyline-sim: " << problem.what() << std::endl;
        return 1;
    }
}
