// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Instrument.h"

#include "core/ModeTable.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tally::sim {

namespace {

constexpr char tab = '\t';
constexpr char dc4 = '\x14';
constexpr std::size_t initLength = 18;
constexpr std::size_t maximumAtOnce = 65536;
constexpr std::int64_t minute = 60'000; // milliseconds
constexpr int rubbishLength = 16;
const char* const prompt = "\r\nSET"; // its "T" is what the computer waits for
const char* const wrongCode = "KWX";

// What the 18 characters ask for.
struct InitRequest {
    ReadingTime clock;
    char mode;
};

// Nothing when they are no "mm-dd-yy hh:mm", blank, letter (a blank without selectable mode), digit, CR.
std::optional<InitRequest> parseInit(std::string_view text, bool blankMode) {
    const auto clock = parseHeaderTime(text.substr(0, 14));
    const char letter = text[15];
    const char digit = text[16];
    const bool letterFits = blankMode ? letter == ' ' : letter >= 'a' && letter <= 'f';
    if (!clock || text[14] != ' ' || !letterFits || (digit != '0' && digit != '1') || text[17] != '\r')
        return std::nullopt;
    return InitRequest{*clock, digit == '1' && !blankMode ? static_cast<char>(letter + 6) : letter};
}

} // namespace

InstrumentSetup setupOf(int type, ReadingTime clock, int count) {
    const Model& model = modelOf(type);
    InstrumentSetup setup;
    setup.type = type;
    setup.code = model.code;
    setup.baud = model.baud;
    setup.clock = clock;
    setup.memory =
        filledMemory(model.blankMode ? ' ' : 'a', model.samples, count < 0 ? model.samples : count, clock);
    return setup;
}

Instrument::Instrument(InstrumentSetup setup)
    : setup_(std::move(setup)),
      clockAtZero_(setup_.clock.minutes * minute + setup_.clockSeconds * 1000),
      random_(setup_.seed) {}

ReadingTime Instrument::clockAt(std::int64_t time) const {
    const std::int64_t milliseconds = clockAtZero_ + time;
    return {(milliseconds - (milliseconds % minute + minute) % minute) / minute};
}

Header Instrument::header(std::int64_t time) const {
    const ReadingTime now = clockAt(time);
    Header header;
    header.code = setup_.faults.wrongToken ? wrongCode : setup_.code;
    if (setup_.faults.lowBattery)
        header.code[0] = lowerCase(header.code[0]);
    const bool stopped = setup_.batteryFailed || !setup_.memory.isRunning(now);
    header.mode = stopped ? upperCase(setup_.memory.mode) : setup_.memory.mode;
    if (setup_.modeShown != '\0')
        header.mode = setup_.modeShown;
    header.serial = setup_.serial;
    header.battery = setup_.battery;
    header.time = headerTime(setup_.batteryFailed ? setup_.memory.begin : setup_.memory.recordedUntil(now));
    if (setup_.faults.badTime)
        header.time = "99-99-99 99:99";
    return header;
}

void Instrument::opened(std::int64_t time) {
    open_ = true;
    narrate("The computer has opened the port.");
    if (setup_.plugOnOpen)
        plugAt_ = time + setup_.plugDelay;
}

void Instrument::rate(std::int64_t, int baud) {
    baud_ = baud;
    if (open_ && baud != setup_.baud)
        narrate("The computer listens at " + std::to_string(baud) + " baud, the instrument speaks at " +
                std::to_string(setup_.baud) + ".");
}

void Instrument::closed(std::int64_t) {
    open_ = false;
    narrate("The computer has closed the port.");
    unplug();
}

void Instrument::dtr(std::int64_t time, bool on) {
    if (setup_.reset == Reset::ignored)
        return;
    narrate(on ? "The reset is over." : "The computer resets the interface.");
    unplug();
    if (open_ && (on || setup_.reset == Reset::excites))
        plugAt_ = time + setup_.plugDelay;
}

void Instrument::unplug() {
    powered_ = false;
    collecting_ = false;
    collected_.clear();
    plugAt_ = never;
    answerAt_ = never;
    answer_ = Answer::none;
    sending_.stop();
}

void Instrument::plug(std::int64_t time) {
    unplug();
    powered_ = true;
    text_ = Text::memory;
    if (!open_)
        narrate("The cable is in, but the port is closed: what the instrument sends is lost.");
    if (setup_.faults.silent)
        return;
    MemoryText memory = memoryText(header(time), setup_.layout, setup_.memory.newestFirst(clockAt(time)),
                                   setup_.low, setup_.faults, random_);
    narrate("The cable is in: sending " + std::to_string(memory.text.size()) + " characters.");
    start(time, std::move(memory.text), setup_.faults.stalls, memory.repeatFrom);
    for (const std::int64_t cut : {setup_.faults.cable, setup_.faults.gone})
        if (cut >= 0)
            sending_.cutAt(cut);
    if (sending_.nextAt() == never)
        ended(time);
}

void Instrument::send(std::int64_t time, std::string characters) {
    text_ = Text::other;
    start(time, std::move(characters));
}

void Instrument::start(std::int64_t time, std::string text, std::vector<Stall> stalls,
                       std::size_t repeatFrom) {
    sending_.start(time, std::move(text), setup_.baud * setup_.speed, std::move(stalls), repeatFrom);
}

void Instrument::received(std::int64_t time, std::string_view characters) {
    received_ += static_cast<std::int64_t>(characters.size());
    // At another rate its receiver makes nothing of them.
    if (!powered_ || baud_ != setup_.baud)
        return;
    for (const char character : characters)
        hear(time, character);
}

void Instrument::hear(std::int64_t time, char character) {
    if (character == (setup_.memory.mode == ' ' ? dc4 : tab)) {
        command(time);
    } else if (collecting_) {
        collected_ += character;
        if (collected_.size() == initLength)
            initialize(time);
    }
}

void Instrument::command(std::int64_t time) {
    narrate("The command to initialise has come.");
    collected_.clear();
    const bool sendsOn =
        text_ == Text::memory && sending_.nextAt() != never && setup_.beforeAnswer != BeforeAnswer::nothing;
    if (!sendsOn)
        sending_.stop();
    else if (setup_.beforeAnswer == BeforeAnswer::line)
        sending_.cutAtLineEnd();
    collecting_ = !setup_.strict && !setup_.faults.noAnswer && !setup_.faults.rubbishAnswer;
    answer_ = setup_.faults.noAnswer ? Answer::none : Answer::prompt;
    answerAt_ = answer_ == Answer::none || sendsOn ? never : time + setup_.answerTime;
}

void Instrument::initialize(std::int64_t time) {
    collecting_ = false;
    const auto request = parseInit(collected_, setup_.memory.mode == ' ');
    if (!request) {
        narrate("The settings that came are none; nothing was erased.");
        return;
    }
    initString_ = collected_;
    ++erasures_;
    clockAtZero_ = request->clock.minutes * minute - time;
    setup_.memory.mode = request->mode;
    setup_.memory.begin = request->clock;
    setup_.memory.stopped = false;
    setup_.memory.readings.clear();
    setup_.modeShown = '\0';
    if (setup_.batteryFailed)
        setup_.layout = Layout::current;
    setup_.batteryFailed = false;
    narrate("The memory is erased; clock and mode are set.");
    answer_ = setup_.faults.noReadBack ? Answer::none : Answer::readBack;
    answerAt_ = answer_ == Answer::none ? never : time + setup_.eraseTime;
}

void Instrument::answer(std::int64_t time) {
    const Answer wanted = std::exchange(answer_, Answer::none);
    answerAt_ = never;
    text_ = wanted == Answer::prompt ? Text::prompt : Text::other;
    if (wanted == Answer::prompt) {
        start(time, setup_.faults.rubbishAnswer ? rubbish(rubbishLength, random_) : prompt);
        return;
    }
    std::string text = headerText(header(time), setup_.layout) + lineEnd(setup_.layout);
    if (!setup_.faults.openReadBack)
        text += '\x1a';
    start(time, std::move(text));
    if (setup_.faults.readBackCut >= 0)
        sending_.cutAt(setup_.faults.readBackCut);
}

std::string Instrument::onLine(const std::string& characters) {
    if (!open_)
        return {};
    if (baud_ == setup_.baud)
        return characters;
    if (!setup_.rubbishAtWrongRate)
        return {};
    return rubbish(static_cast<int>(characters.size()), random_);
}

std::string Instrument::sent(std::int64_t time) {
    std::string all;
    // A text that takes no time and never ends must not hold the caller.
    std::size_t budget = maximumAtOnce;
    for (std::int64_t next = nextAt(); next <= time && budget > 0; next = nextAt()) {
        if (next == plugAt_) {
            plug(next);
        } else if (next == answerAt_) {
            answer(next);
        } else {
            const std::string taken = sending_.take(std::min({time, plugAt_, answerAt_}));
            all += onLine(taken);
            if (sending_.nextAt() == never)
                ended(std::min(time, next));
            budget -= std::min(budget, taken.size());
        }
    }
    return all;
}

// The last character has gone, or the line was cut before it.
void Instrument::ended(std::int64_t time) {
    if (text_ == Text::memory)
        memoryEnded(time);
    else if (text_ == Text::prompt && setup_.strict)
        collecting_ = !setup_.faults.rubbishAnswer;
    text_ = Text::other;
}

void Instrument::memoryEnded(std::int64_t time) {
    if (setup_.faults.gone >= 0 && sending_.count() >= setup_.faults.gone) {
        gone_ = true;
    } else if (setup_.faults.cable >= 0 && sending_.count() >= setup_.faults.cable) {
        powered_ = false;
        narrate("The cable was pulled out of the instrument.");
    } else if (answer_ == Answer::prompt) {
        answerAt_ = time + setup_.answerTime;
    } else {
        ++completed_;
        narrate("All is sent.");
        if (setup_.repeatAfter != never)
            plugAt_ = time + setup_.repeatAfter;
    }
}

std::int64_t Instrument::nextAt() const {
    return std::min({plugAt_, answerAt_, sending_.nextAt()});
}

} // namespace tally::sim
