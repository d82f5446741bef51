// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Faults.h"

#include <charconv>
#include <stdexcept>
#include <variant>

namespace tally::sim {

namespace {

using Member =
    std::variant<bool Faults::*, int Faults::*, std::int64_t Faults::*, std::vector<Stall> Faults::*>;

struct Entry {
    std::string_view name;
    std::string_view argument;
    Member member;
    std::string_view meaning;
};

const Entry entries[] = {
    {"low-battery", "", &Faults::lowBattery, "the first letter comes in lower case"},
    {"silent", "", &Faults::silent, "nothing is sent at all"},
    {"wrong-token", "", &Faults::wrongToken, "a model code that automatic selection does not take"},
    {"noise", "N", &Faults::noise, "N characters of rubbish, of any value, before the header"},
    {"tail", "N", &Faults::tail, "the last N characters of an old transmission before the header"},
    {"binary", "N", &Faults::binary, "N bytes of every value instead of the text"},
    {"header-only", "", &Faults::headerOnly, "the header, then silence"},
    {"header-cut", "N", &Faults::headerCut, "only the first N columns of the header"},
    {"bad-time", "", &Faults::badTime, "the time in the header is none"},
    {"no-ctrl-z", "", &Faults::noCtrlZ, "the end of the text (ctrl/Z) is missing"},
    {"double-ctrl-z", "", &Faults::doubleCtrlZ, "a second ctrl/Z stands after the first line of readings"},
    {"two-ctrl-z", "", &Faults::twoCtrlZ, "two ctrl/Z stand at the end"},
    {"early-ctrl-z", "N", &Faults::earlyCtrlZ, "a ctrl/Z stands before character N"},
    {"endless", "", &Faults::endless, "the readings never end"},
    {"nines", "N", &Faults::nines, "the first N readings are 999"},
    {"over", "N", &Faults::over, "the first N readings are 1234"},
    {"short-line", "K", &Faults::shortLine, "line K of the readings has one too few"},
    {"long-line", "K", &Faults::longLine, "line K of the readings has one too many"},
    {"damaged-line", "K", &Faults::damagedLine, "an A stands in line K of the readings"},
    {"stall", "N:MS", &Faults::stalls, "a pause of MS milliseconds before character N (may be repeated)"},
    {"cable", "N", &Faults::cable, "the cable is pulled out of the instrument after N characters: silence"},
    {"gone", "N", &Faults::gone, "the adapter is pulled out of the computer after N characters"},
    {"no-answer", "", &Faults::noAnswer, "initialisation: the command is not answered"},
    {"rubbish-answer", "", &Faults::rubbishAnswer,
     "initialisation: the command is answered with rubbish of any value"},
    {"no-read-back", "", &Faults::noReadBack, "initialisation: nothing is read back"},
    {"open-read-back", "", &Faults::openReadBack, "initialisation: the read-back does not end"},
    {"read-back-cut", "N", &Faults::readBackCut, "initialisation: only N characters are read back"},
};

constexpr std::int64_t maximumMade = 1'000'000;        // characters, readings or lines that are made up
constexpr std::int64_t maximumCounted = 1'000'000'000; // characters or milliseconds that are only counted

std::int64_t number(std::string_view text, std::string_view whole, std::int64_t maximum = maximumCounted) {
    std::int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size() || value < 0 || value > maximum)
        throw std::invalid_argument("\"" + std::string(whole) + "\": a whole number, at most " +
                                    std::to_string(maximum) + ", is expected after \"=\"");
    return value;
}

void assign(Faults& faults, const Entry& entry, std::string_view argument, std::string_view whole) {
    if (const auto* flag = std::get_if<bool Faults::*>(&entry.member)) {
        faults.** flag = true;
    } else if (const auto* small = std::get_if<int Faults::*>(&entry.member)) {
        faults.** small = static_cast<int>(number(argument, whole, maximumMade));
    } else if (const auto* large = std::get_if<std::int64_t Faults::*>(&entry.member)) {
        faults.** large = number(argument, whole);
    } else {
        const std::size_t colon = argument.find(':');
        if (colon == std::string_view::npos)
            throw std::invalid_argument("\"" + std::string(whole) + "\": expected stall=N:MS");
        faults.stalls.push_back(
            {number(argument.substr(0, colon), whole), number(argument.substr(colon + 1), whole)});
    }
}

} // namespace

void addFault(Faults& faults, std::string_view text) {
    const std::size_t equals = text.find('=');
    const std::string_view name = text.substr(0, equals);
    const std::string_view argument = equals == std::string_view::npos ? "" : text.substr(equals + 1);
    for (const Entry& entry : entries)
        if (entry.name == name) {
            if (entry.argument.empty() && equals != std::string_view::npos)
                throw std::invalid_argument("\"" + std::string(name) + "\" takes no number");
            assign(faults, entry, argument, text);
            return;
        }
    throw std::invalid_argument("there is no fault \"" + std::string(name) + "\"");
}

std::string faultHelp() {
    constexpr std::size_t column = 18;
    std::string text;
    for (const Entry& entry : entries) {
        std::string left = "  " + std::string(entry.name);
        if (!entry.argument.empty())
            left += "=" + std::string(entry.argument);
        left.resize(std::max(column + 2, left.size() + 1), ' ');
        text += left + std::string(entry.meaning) + "\n";
    }
    return text;
}

} // namespace tally::sim
