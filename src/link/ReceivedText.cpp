// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ReceivedText.h"

#include "core/Header.h"
#include "core/ModeTable.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::size_t farthestStart = 32766;
constexpr std::string_view ends = "\r\n\x1a";

} // namespace

std::size_t startOfRecording(std::string_view gText) {
    const auto found = std::find_if(gText.begin(), gText.end(), isFamilyInitial);
    return static_cast<std::size_t>(found - gText.begin());
}

bool upperCaseModel(std::string& gText) {
    const std::size_t start = startOfRecording(std::string_view(gText).substr(0, farthestStart));
    if (start >= std::min(gText.size(), farthestStart))
        return false;
    for (std::size_t i = start; i < std::min(start + 3, gText.size()); ++i)
        gText[i] = upperCase(gText[i]);
    return true;
}

std::string headerOf(std::string_view gText) {
    const std::string_view rest = gText.substr(startOfRecording(gText));
    return std::string(rest.substr(0, rest.find_first_of(ends)));
}

void setModeLetter(std::string& gText, char letter) {
    gText.at(startOfRecording(gText) + column::mode.at) = letter;
}

void setHeaderTime(std::string& gText, ReadingTime time) {
    std::string header = headerOf(gText);
    const std::size_t length = header.size();
    putTime(header, timeField(header), time);
    gText.replace(startOfRecording(gText), length, header);
}

} // namespace tally
