// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Validation.h"

#include "core/Header.h"
#include "core/Numbers.h"
#include "link/TextBlocks.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>
#include <vector>

namespace tally {

namespace {

constexpr std::size_t none = std::string_view::npos;
constexpr int readingsInLine = 10;
constexpr char ctrlZMark = '\x1a';

// Whether the number that a reading begins with has a value above 999.
bool isOver999(std::string_view reading) {
    const std::size_t first = std::min(reading.find_first_not_of('0'), reading.size());
    const std::size_t end = std::min(reading.find_first_not_of("0123456789"), reading.size());
    return end > first + 3;
}

constexpr auto bitsInByte = [] {
    std::array<std::uint8_t, 256> bits = {};
    for (unsigned i = 0; i < bits.size(); ++i)
        bits[i] = static_cast<std::uint8_t>(std::popcount(i));
    return bits;
}();

// Scans a data section: whole blocks where nothing needs a closer look, else one character after the other.
class Scanner {
public:
    Scanner(std::string_view text, std::size_t section) : text_(text), at_(section) {}

    void run() {
        while (at_ < text_.size()) {
            plainBlocks();
            stepBlock();
        }
        endReading();
    }

    int badLines = 0;
    int over999 = 0;
    int ctrlZ = 0;
    int badChars = 0;
    int firstBadChar = 0;           // when there is one
    std::vector<std::size_t> at999; // where the readings of "999" begin

private:
    // Blocks of digits and white space without a run of four digits or a "999" only add readings to lines;
    // runs of digits may reach over their borders. Stops before the first block that is not such a one, with
    // the reading open that the block before ended in.
    void plainBlocks() {
        std::uint64_t digitsBefore = 0; // of the block before
        std::uint64_t pairsBefore = 0;
        for (; text_.size() - at_ >= TextBlock::looksAt; at_ += TextBlock::size) {
            const TextBlock block = classify(text_.data() + at_);
            const std::uint64_t pairs = block.digits & (block.digits << 1 | digitsBefore >> 63);
            const std::uint64_t fours = pairs & (pairs << 2 | pairsBefore >> 62);
            if (!block.plain || fours != 0)
                break;
            addStarts(block.digits ^ pairs, block.lineFeeds);
            digitsBefore = block.digits;
            pairsBefore = pairs;
        }
        if (const auto length = static_cast<std::size_t>(std::countl_one(digitsBefore)); length > 0)
            start_ = at_ - length;
    }

    // Adds the readings that start in a block to its lines.
    void addStarts(std::uint64_t starts, std::uint64_t feeds) {
        const std::uint64_t upTo = bitsUpToByte(starts);
        int ended = 0; // readings of the block in lines that have ended
        for (; feeds != 0; feeds &= feeds - 1) {
            const int at = std::countr_zero(feeds);
            // All up to the byte of the line feed, without those after it in that byte.
            const int byte = at & ~7;
            const int before = static_cast<int>(upTo >> byte & 0xff) -
                               bitsInByte[static_cast<std::size_t>(starts >> byte & 0xff) >> (at & 7)];
            readings_ += before - ended;
            ended = before;
            endLine();
        }
        readings_ += static_cast<int>(upTo >> 56) - ended;
    }

    // One block character by character, and on to the end of a reading.
    void stepBlock() {
        const std::size_t end = std::min(at_ + TextBlock::size, text_.size());
        for (; at_ < text_.size() && (at_ < end || start_ != none); ++at_)
            step(text_[at_]);
    }

    void step(char c) {
        if (c >= '0' && c <= '9') {
            if (start_ == none) {
                start_ = at_;
                ++readings_;
            }
        } else if (c == ' ' || c == '\r') {
            endReading();
        } else if (c == '\n') {
            endReading();
            endLine();
        } else if (c == ctrlZMark) {
            if (++ctrlZ > 1)
                addBad(c);
        } else {
            addBad(c);
        }
    }

    void addBad(char c) {
        if (badChars++ == 0)
            firstBadChar = static_cast<unsigned char>(c);
    }

    void endReading() {
        if (start_ == none)
            return;
        // A terminator closes the text, it is no part of the last reading.
        const std::string_view whole = text_.substr(start_, at_ - start_);
        const std::string_view reading = whole.substr(0, whole.find_last_not_of(ctrlZMark) + 1);
        if (reading == "999")
            at999.push_back(start_);
        if (isOver999(reading))
            ++over999;
        start_ = none;
    }

    void endLine() {
        if (readings_ != readingsInLine)
            ++badLines;
        readings_ = 0;
    }

    std::string_view text_;
    std::size_t at_;
    std::size_t start_ = none; // of the open reading
    int readings_ = 0;         // of the line so far
};

// Lines between the end of the header and the mark of the data section. A reader takes them for readings.
int strayLines(std::string_view beforeMark) {
    const auto start = std::find_if(beforeMark.begin(), beforeMark.end(), isFamilyInitial);
    const std::size_t end = beforeMark.find('\r', static_cast<std::size_t>(start - beforeMark.begin()));
    if (end == none)
        return 0;
    std::string_view between = beforeMark.substr(end + 1);
    if (between.empty() || between == "\n")
        return 0;
    int lines = 0;
    for (std::size_t at = 0; (at = between.find_first_not_of("\r\n ", at)) != none; ++lines)
        at = std::min(between.find_first_of("\r\n", at), between.size());
    return std::max(lines, 1);
}

} // namespace

ValidationCounts validate(std::string& gText, bool change999sTo000) {
    const std::size_t mark = gText.find("T:");
    if (mark == std::string::npos)
        return {};
    const int stray = strayLines(std::string_view(gText).substr(0, mark));
    Scanner scanner(gText, mark + 2);
    scanner.run();
    ValidationCounts counts{.badLines = toInt16(scanner.badLines + stray),
                            .over999 = toInt16(scanner.over999),
                            .count999 = toInt16(static_cast<double>(scanner.at999.size())),
                            .ctrlZ = toInt16(scanner.ctrlZ),
                            .badChars = toInt16(scanner.badChars)};
    if (counts.badChars > 0)
        counts.firstBadChar = static_cast<unsigned char>(scanner.firstBadChar);
    if (change999sTo000)
        for (const std::size_t at : scanner.at999)
            gText.replace(at, 3, "000");
    return counts;
}

} // namespace tally
