// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tally::sim {

// A pause of the instrument before the character with this number (from 0).
struct Stall {
    std::int64_t at = 0;
    std::int64_t milliseconds = 0;
};

// What is wrong with an instrument or its cable. Character numbers count from the first one after the cable
// went in, lines from the one that begins with "T:", which is 1.
struct Faults {
    bool lowBattery = false;      // initial in lower case
    bool silent = false;          // sends nothing at all
    bool wrongToken = false;      // a model code that automatic selection does not take
    bool noCtrlZ = false;         // the end of the text is missing
    bool doubleCtrlZ = false;     // ... or comes twice, once in the middle
    bool twoCtrlZ = false;        // ... or twice at the end
    bool endless = false;         // goes on with its readings and never ends
    bool badTime = false;         // the time in the header is none
    bool headerOnly = false;      // nothing comes after the header
    int noise = 0;                // characters of rubbish before the header
    int tail = 0;                 // so many characters of the end of an old transmission before it
    int binary = 0;               // sends so many bytes of every value instead of a text
    int headerCut = 0;            // so many columns of the header only
    int nines = 0;                // so many readings are 999
    int over = 0;                 // so many readings are 1234
    int shortLine = 0;            // a reading too few in this line
    int longLine = 0;             // one too many
    int damagedLine = 0;          // an "A" in this line
    std::int64_t earlyCtrlZ = -1; // an end mark before this character
    std::int64_t cable = -1;      // out of the instrument after so many characters: silence
    std::int64_t gone = -1;       // adapter out of the computer: the port disappears
    std::vector<Stall> stalls;
    bool noAnswer = false;         // initialisation: the command is not answered
    bool rubbishAnswer = false;    // ... is answered with something else
    bool noReadBack = false;       // nothing is read back
    bool openReadBack = false;     // ... without its end
    std::int64_t readBackCut = -1; // ... and so many characters of it
};

// Adds one fault: "low-battery", "noise=20", "stall=500:1500". Throws std::invalid_argument with words for
// the user when it is none.
void addFault(Faults& faults, std::string_view text);

// The faults and what they mean, one a line.
std::string faultHelp();

} // namespace tally::sim
