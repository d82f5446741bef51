// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Phase.h"

#include <string>

namespace tally {

namespace {

bool isLetter(char c) {
    // Bytes of letters outside ASCII belong to words, too.
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}

Phase phaseOfWord(const std::string& word) {
    if (word == "red")
        return Phase::red;
    if (word == "white")
        return Phase::white;
    return word == "blue" ? Phase::blue : Phase::none;
}

} // namespace

Phase phaseIn(std::string_view text) {
    Phase found = Phase::none;
    std::string word;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const char c = i < text.size() ? text[i] : ' ';
        if (isLetter(c)) {
            word += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
            continue;
        }
        const Phase phase = phaseOfWord(word);
        word.clear();
        if (phase == Phase::none || phase == found)
            continue;
        if (found != Phase::none)
            return Phase::none;
        found = phase;
    }
    return found;
}

} // namespace tally
