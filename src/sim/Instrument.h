// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Memory.h"
#include "sim/Model.h"
#include "sim/Peer.h"
#include "sim/Texts.h"
#include "sim/Transmission.h"

#include <functional>
#include <random>

namespace tally::sim {

// What an instrument still sends of its memory after the command to initialise, before it answers.
enum class BeforeAnswer {
    nothing,
    line,  // the rest of the line, after the header the first one: "T:" comes before the answer
    memory // all of it
};

// What dropping the DTR line does to an instrument that hears of it.
enum class Reset {
    ignored,
    restarts, // it is silent while DTR is low, and sends from the beginning when it is high again
    excites   // it sends from the beginning when DTR falls, and once more when it is high again
};

// How an instrument is set up.
struct InstrumentSetup {
    int type = 7;
    std::string code = "KWT";
    int baud = 9600;
    std::string serial = "1234";
    int battery = 0x3E8; // raw reading
    Layout layout = Layout::current;
    bool low = false;           // tenths with one decimal
    bool batteryFailed = false; // no usable clock: the header says when the recording began
    Memory memory;
    char modeShown = '\0'; // in the header instead of the memory's mode
    ReadingTime clock;     // the instrument's, at time 0 ...
    int clockSeconds = 0;
    Faults faults;
    bool plugOnOpen = true;           // the cable goes in by itself after each opening ...
    std::int64_t plugDelay = 500;     // ... so many milliseconds later ...
    std::int64_t repeatAfter = never; // ... and again so many after each text
    double speed = 1;                 // times the pace of the line; 0 for no pace at all
    bool rubbishAtWrongRate = false;  // else silence
    std::int64_t eraseTime = 2000;    // milliseconds
    std::int64_t answerTime = 50;     // milliseconds from the command to its answer
    BeforeAnswer beforeAnswer = BeforeAnswer::nothing;
    bool strict = false; // takes the 18 characters only after it has answered
    Reset reset = Reset::ignored;
    unsigned seed = 1; // of noise and rubbish
};

// The setup of an instrument type, its memory holding `count` readings at `clock` (-1: as many as fit).
InstrumentSetup setupOf(int type, ReadingTime clock, int count = -1);

// A load recorder at the end of a line. When its cable goes in it sends its memory; it then listens for the
// command that begins an initialisation.
class Instrument : public Peer {
public:
    explicit Instrument(InstrumentSetup setup);

    void opened(std::int64_t time) override;
    void rate(std::int64_t time, int baud) override;
    void received(std::int64_t time, std::string_view characters) override;
    void closed(std::int64_t time) override;
    void dtr(std::int64_t time, bool on) override;
    void pressed(std::int64_t time) override { plug(time); }
    std::string sent(std::int64_t time) override;
    std::int64_t nextAt() const override;
    bool gone() const override { return gone_; }
    bool finished() const override { return false; }
    int ownRate() const override { return setup_.baud; }

    // The cable goes into the instrument, or out of it.
    void plug(std::int64_t time);
    void unplug();
    // The adapter is pulled out of the computer.
    void pullAdapter() { gone_ = true; }
    // Sends characters of one's own.
    void send(std::int64_t time, std::string characters);

    InstrumentSetup& setup() { return setup_; }
    // How often the memory was erased, and the 18 characters that did it last.
    int erasures() const { return erasures_; }
    const std::string& initString() const { return initString_; }
    // How many texts were sent to their end.
    int completed() const { return completed_; }
    std::int64_t receivedCount() const { return received_; }
    // What happens, in words for a trainer.
    std::function<void(const std::string& text)> narrate = [](const std::string&) {};

private:
    enum class Answer { none, prompt, readBack };
    // What is being sent.
    enum class Text { memory, prompt, other };

    ReadingTime clockAt(std::int64_t time) const;
    Header header(std::int64_t time) const;
    void start(std::int64_t time, std::string text, std::vector<Stall> stalls = {},
               std::size_t repeatFrom = std::string::npos);
    void hear(std::int64_t time, char character);
    void command(std::int64_t time);
    void initialize(std::int64_t time);
    void answer(std::int64_t time);
    void ended(std::int64_t time);
    void memoryEnded(std::int64_t time);
    std::string onLine(const std::string& characters);

    InstrumentSetup setup_;
    std::int64_t clockAtZero_; // the instrument's clock at time 0, milliseconds
    std::mt19937 random_;
    Transmission sending_;
    Text text_ = Text::other;
    std::int64_t plugAt_ = never;
    std::int64_t answerAt_ = never;
    Answer answer_ = Answer::none;
    std::string collected_; // of the init string
    std::string initString_;
    int baud_ = 0; // of the computer
    int erasures_ = 0;
    int completed_ = 0;
    std::int64_t received_ = 0;
    bool open_ = false;
    bool powered_ = false;    // the cable is in
    bool collecting_ = false; // the 18 characters are taken
    bool gone_ = false;
};

} // namespace tally::sim
