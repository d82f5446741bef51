// SPDX-License-Identifier: GPL-3.0-or-later
// tallyline_faults [--brief] [--seed N] [KIND...]: lets the programs meet failing disks, kills and pulled
// cables, and prints one line of figures for each kind of trial. Exit status 1 when something went wrong.
#include "Desk.h"

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

struct Kind {
    std::string name;
    std::function<void(tally::faults::Desk&)> run;
};

const std::vector<Kind> kinds = {
    {"writers", tally::faults::tryWriters}, {"archive", tally::faults::tryArchives},
    {"kills", tally::faults::tryKills},     {"unplugging", tally::faults::tryUnplugging},
    {"slow", tally::faults::trySlowDisk},   {"starts", tally::faults::tryParallelStarts}};

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    if (!words.empty() && words[0] == "--inside")
        return tally::faults::runInside({words.begin() + 1, words.end()});
    const auto brief = std::find(words.begin(), words.end(), "--brief");
    const bool isBrief = brief != words.end();
    if (isBrief)
        words.erase(brief);
    std::uint32_t seed = 1;
    const auto given = std::find(words.begin(), words.end(), "--seed");
    if (given != words.end() && given + 1 != words.end()) {
        seed = static_cast<std::uint32_t>(std::stoul(*(given + 1)));
        words.erase(given, given + 2);
    }
    std::printf("seed %u\n", seed);
    tally::faults::Desk desk(seed, isBrief);
    for (const Kind& kind : kinds)
        if (words.empty() || std::find(words.begin(), words.end(), kind.name) != words.end())
            kind.run(desk);
    return desk.bad == 0 ? 0 : 1;
}
