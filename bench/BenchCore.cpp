// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "core/DataText.h"
#include "core/SaveText.h"

#include <charconv>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tally::bench {

namespace {

constexpr int maximumReadings = Recordings::maximumReadings;

// A day curve in tenths with some noise, as a feeder has it.
std::int16_t curve(int i) {
    const double day = std::sin(2 * 3.14159265 * i / 96.0);
    const int noise = static_cast<int>((static_cast<unsigned>(i) * 2654435761U) >> 27);
    return static_cast<std::int16_t>(550 + 400 * day + noise);
}

Recordings longest(char mode, bool low) {
    Recordings recordings;
    FileFacts& facts = recordings.gInfo[0];
    facts.path = "bench.dat";
    facts.modeLetter = mode;
    facts.low = low;
    facts.count = maximumReadings;
    facts.header =
        std::string("H1A") + mode + "   4711" + std::string(19, ' ') + "03-15-99 10:30   Vbatt  6.12";
    for (int i = 0; i < maximumReadings; ++i)
        recordings.gReadings[0].push_back(low ? curve(i) : static_cast<std::int16_t>(curve(i) / 10 * 10));
    recordings.ginx = 0;
    return recordings;
}

bool isSeparator(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == ',';
}

// What any program would write: from_chars over the items, turned round into tenths. Both texts stand in the
// cache: this measures reading numbers, not the disk.
std::vector<std::int16_t> plainLoop(const std::string& text, std::size_t at) {
    std::vector<std::int16_t> newestFirst;
    newestFirst.reserve(maximumReadings);
    const char* const end = text.data() + text.size();
    for (const char* p = text.data() + at; p < end;) {
        if (isSeparator(*p)) {
            ++p;
            continue;
        }
        double value = 0;
        const auto result = std::from_chars(p, end, value);
        if (result.ec != std::errc())
            break;
        newestFirst.push_back(static_cast<std::int16_t>(std::lrint(value * 10)));
        p = result.ptr;
    }
    return {newestFirst.rbegin(), newestFirst.rend()};
}

void readingGoal(const std::string& name, char mode, bool low) {
    const Recordings recordings = longest(mode, low);
    const auto text = std::make_shared<std::string>(quoted(buildDataText(recordings, 0, recordings.all(0))));
    const std::size_t body = text->find('\r', text->find('H')) + 1;
    const auto check = readDataText(*text);
    if (check.value().readings.size() != plainLoop(*text, body).size())
        throw std::logic_error("the two readers disagree on " + name);
    goal(
        name, [text] { keep(readDataText(*text)); }, [text, body] { keep(plainLoop(*text, body)); }, 0.12);
}

} // namespace

void registerGoals() {
    readingGoal("read_high_42966", 'a', false);
    readingGoal("read_low_42966", 'a', true);
    readingGoal("read_low_triples_42966", 'g', true);
}

} // namespace tally::bench
