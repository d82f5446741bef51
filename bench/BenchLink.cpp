// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "link/Validation.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace tally::bench {

namespace {

constexpr std::size_t longest = 205000;

// A full memory: lines of ten readings of one to three digits in fields of four.
std::string received() {
    std::string text = "KWTA   1234                   03-15-24 14:05   Vbatt 3E8\rT:";
    for (int i = 0; text.size() < longest - 64; ++i) {
        const std::string reading = std::to_string(i * 7919 % 998 + 1);
        text += std::string(4 - reading.size(), ' ') + reading;
        if (i % 10 == 9)
            text += "\n\r";
    }
    text += '\x1a';
    return text + std::string(longest - text.size(), ' ');
}

} // namespace

void registerGoals() {
    const auto text = std::make_shared<std::string>(received());
    if (!validate(*text, false).result().empty())
        std::abort();
    goal(
        "validation", [text] { keep(validate(*text, true)); },
        [text] {
            // No such character: all of them are looked at. The text stands in the cache, where this costs
            // next to nothing: it stands for the fastest that looking at every character can be, not for a
            // check.
            keep(std::memchr(text->data(), 1, text->size()));
            benchmark::ClobberMemory();
        },
        12);
}

} // namespace tally::bench
