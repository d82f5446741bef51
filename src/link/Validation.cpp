// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Validation.h"

#include "core/Numbers.h"
#include "link/TextBlocks.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <vector>

namespace tally {

namespace {

constexpr std::size_t none = std::string_view::npos;
constexpr int readingsInLine = 10;

// Whether the number that a reading begins with has a value above 999.
bool isOver999(std::string_view reading) {
    const std::size_t first = std::min(reading.find_first_not_of('0'), reading.size());
    const std::size_t end = std::min(reading.find_first_not_of("0123456789"), reading.size());
    return end > first + 3;
}

// Scans a data section: whole blocks where nothing needs a closer look, else one character after the other.
class Scanner {
public:
    Scanner(std::string_view text, std::size_t section) : text_(text), at_(section) {}

    void run() {
        while (at_ < text_.size())
            if (text_.size() - at_ < TextBlock::size || !plainBlock())
                stepBlock();
        endReading();
    }

    int badLines = 0;
    int over999 = 0;
    int ctrlZ = 0;
    int badChars = 0;
    std::optional<unsigned char> firstBadChar;
    std::vector<std::size_t> at999; // where the readings of "999" begin

private:
    // A block of digits and white space without a run of four digits or three nines only adds readings to
    // lines. A reading that it ends in is left to the next block. False when it is not such a block; no
    // reading is open before or after it.
    bool plainBlock() {
        const TextBlock block = classify(text_.data() + at_);
        const std::uint64_t digits = block.digits;
        const std::uint64_t nines = block.nines;
        const std::uint64_t pairs = digits & digits << 1;
        if ((block.others | (pairs & pairs << 2) | (nines & nines << 1 & nines << 2)) != 0)
            return false;
        const int cut = std::countl_one(digits);
        std::uint64_t starts = digits & ~(digits << 1) & (~0ULL >> cut);
        for (std::uint64_t feeds = block.lineFeeds; feeds != 0; feeds &= feeds - 1) {
            const std::uint64_t before = (feeds & (~feeds + 1)) - 1;
            readings_ += std::popcount(starts & before);
            starts &= ~before;
            endLine();
        }
        readings_ += std::popcount(starts);
        at_ += TextBlock::size - static_cast<std::size_t>(cut);
        return true;
    }

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
        } else if (c == '\x1a') {
            endReading();
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
        const std::string_view reading = text_.substr(start_, at_ - start_);
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

} // namespace

ValidationCounts validate(std::string& gText, bool change999sTo000) {
    const std::size_t mark = gText.find("T:");
    if (mark == std::string::npos)
        return {};
    Scanner scanner(gText, mark + 2);
    scanner.run();
    const ValidationCounts counts{.badLines = toInt16(scanner.badLines),
                                  .over999 = toInt16(scanner.over999),
                                  .count999 = toInt16(static_cast<double>(scanner.at999.size())),
                                  .ctrlZ = toInt16(scanner.ctrlZ),
                                  .badChars = toInt16(scanner.badChars),
                                  .firstBadChar = scanner.firstBadChar};
    if (change999sTo000)
        for (const std::size_t at : scanner.at999)
            gText.replace(at, 3, "000");
    return counts;
}

} // namespace tally
