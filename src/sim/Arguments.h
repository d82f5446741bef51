// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Instrument.h"

#include <optional>
#include <string>

namespace tally::sim {

// What was asked for on the command line.
struct Arguments {
    InstrumentSetup setup;
    std::string link;
    std::string record;
    bool overwrite = false; // of the record
    std::string replay;
    std::string script;
    std::string dtr;    // pipe
    bool enter = false; // the cable goes in when Enter is pressed
    bool loop = false;
    bool once = false;
    bool quiet = false;
    bool withParent = false;
};

// Reads the command line; `clock` and `seconds` are the computer's time of day. Where it asks for help or
// cannot be read, says so and gives nothing; `status` is then what the program ends with.
std::optional<Arguments> parseArguments(int argc, char** argv, ReadingTime clock, int seconds, int& status);

} // namespace tally::sim
