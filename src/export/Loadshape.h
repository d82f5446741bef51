// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/Refusal.h"

#include <set>
#include <string>

namespace tally {

// A load shape of one file for an OpenDSS script: the averages of its whole entries divided by the highest
// one.
struct Loadshape {
    std::string name;   // letters, digits, "_" and "-"
    std::string script; // the lines that define it
    std::string csv;    // the factors, a line each; all 0 where every reading is 0
};

// The shape of the file in slot 0, for the script at `scriptStem` + ".dss". `taken` holds the names given
// before, in lower case, and takes this one.
Expected<Loadshape> loadshape(const Recordings& recordings, const std::string& scriptStem,
                              std::set<std::string>& taken);

// The name part of a path without its ending, every sign that is no letter, digit, "_" or "-" as "_".
std::string shapeName(const std::string& path);

// The path of the csv of a shape beside its script.
std::string shapeCsv(const std::string& scriptStem, const std::string& name);

// A GridLAB-D player of the file in slot 0: "YYYY-MM-DD HH:MM:SS,value", of Min/Max/Avg the averages.
Expected<std::string> playerText(const Recordings& recordings);

} // namespace tally
