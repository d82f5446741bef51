// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ReceivedText.h"

#include "core/ModeTable.h"
#include "link/HeaderScan.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::size_t farthestStart = 32766;
constexpr std::size_t timeLength = 14;
constexpr std::string_view ends = "\r\n\x1a";

std::size_t startOf(std::string_view gText) {
    const auto found = std::find_if(gText.begin(), gText.end(), isFamilyInitial);
    return static_cast<std::size_t>(found - gText.begin());
}

} // namespace

bool upperCaseModel(std::string& gText) {
    const std::size_t start = startOf(std::string_view(gText).substr(0, farthestStart));
    if (start >= std::min(gText.size(), farthestStart))
        return false;
    for (std::size_t i = start; i < std::min(start + 3, gText.size()); ++i)
        gText[i] = upperCase(gText[i]);
    return true;
}

std::string headerOf(std::string_view gText) {
    const std::string_view rest = gText.substr(startOf(gText));
    return std::string(rest.substr(0, rest.find_first_of(ends)));
}

char modeLetterOf(std::string_view header) {
    const char letter = header.size() > 3 ? header[3] : ' ';
    return letter == ' ' ? 'a' : lowerCase(letter);
}

bool isRunning(std::string_view header) {
    return header.size() > 3 && header[3] >= 'a' && header[3] <= 'z';
}

std::size_t timeColumn(std::string_view header) {
    return header.size() > 51 && header.substr(44, 8) != "   Vbatt" ? 46 : 30;
}

std::optional<ReadingTime> timeOf(std::string_view header) {
    const std::size_t column = timeColumn(header);
    return column > header.size() ? std::nullopt : parseHeaderTime(header.substr(column, timeLength));
}

void setHeaderTime(std::string& gText, ReadingTime time) {
    std::string header = headerOf(gText);
    const std::size_t length = header.size();
    const std::size_t column = timeColumn(header);
    header.resize(std::max(length, column + timeLength), ' ');
    header.replace(column, timeLength, headerTime(time));
    gText.replace(startOf(gText), length, header);
}

} // namespace tally
