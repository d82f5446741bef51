// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataItems.h"

#include "core/DataNumber.h"
#include "core/DataRows.h"
#include "core/Recordings.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tally {

namespace {

constexpr std::size_t maximumItems = 43050;
constexpr std::size_t maximumKept = Recordings::maximumReadings;
constexpr std::size_t placesHigh = 4;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLineEnd(char c) {
    return c == '\n' || c == '\r';
}

std::size_t digitsFrom(std::string_view text, std::size_t at) {
    const std::size_t begin = at;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at - begin;
}

// A run of HIGH fields that touch, cut as a save writes them: sign and one to four digits, no zero before
// others, and all four places filled where another field stands before it.
class TouchingFields {
public:
    explicit TouchingFields(std::string_view run) : rest_(run) {}

    bool atEnd() const { return rest_.empty(); }

    // The next field; empty where no save writes what stands there.
    std::string_view next() {
        std::size_t sign = 0;
        if (digits_ == 0) {
            sign = rest_.starts_with('-') ? 1 : 0;
            digits_ = digitsFrom(rest_, sign);
        }
        if (digits_ == 0)
            return {};
        // Fours from the right, so that what is less stands first.
        const std::size_t digits = (digits_ - 1) % placesHigh + 1;
        const std::size_t length = sign + digits;
        const bool padded = rest_[sign] == '0' && length > 1;
        if (padded || (!first_ && length < placesHigh))
            return {};
        const std::string_view field = rest_.substr(0, length);
        rest_.remove_prefix(length);
        digits_ -= digits;
        first_ = false;
        return field;
    }

    static bool can(std::string_view run) {
        TouchingFields fields(run);
        while (!fields.atEnd())
            if (fields.next().empty())
                return false;
        return true;
    }

private:
    std::string_view rest_;
    std::size_t digits_ = 0; // left of the digits after the last sign
    bool first_ = true;
};

// Goes through the text once. The file lists the newest reading first: readings are stored downwards from the
// end of a work list, so that they stand oldest first without being turned round.
class ItemReader {
public:
    ItemReader(std::string_view text, bool low)
        : text_(withoutClosingQuote(text)),
          low_(low),
          work_(std::min(maximumItems, text_.size() + 1)),
          next_(work_.size()) {}

    DataItems read() {
        readRows();
        while (!full()) {
            skipSeparators();
            // Rows may have filled the work list.
            if (full() || at_ == text_.size())
                break;
            if (text_[at_] == terminator) {
                items_.ended = true;
                items_.complete = true;
                noteMiddle();
                break;
            }
            readToken();
        }
        if (next_ == 0) {
            items_.ended = true;
            items_.complete = text_.find(terminator, at_) != std::string_view::npos;
        }
        keepNewest();
        return std::move(items_);
    }

private:
    // The writer's quote after the terminator is no item where the terminator is missing.
    static std::string_view withoutClosingQuote(std::string_view text) {
        auto end = text.size();
        while (end > 0 && isDataSeparator(text[end - 1]))
            --end;
        return end > 0 && text[end - 1] == '"' ? text.substr(0, end - 1) : text;
    }

    // As many full rows as stand from here on, where a line begins.
    void readRows() {
        const std::size_t length = low_ ? DataRow::lowLength : DataRow::highLength;
        bool lineStart = true;
        while (lineStart && text_.size() - at_ >= DataRow::reach && next_ >= DataRow::fields) {
            const char* row = text_.data() + at_;
            std::int16_t* last = work_.data() + next_ - 1;
            // A row that goes on is something else: its last token is not complete.
            if (!isDataSeparator(row[length]) && row[length] != terminator)
                return;
            if (!(low_ ? DataRow::readLow(row, last) : DataRow::readHigh(row, last)))
                return;
            next_ -= DataRow::fields;
            at_ += length;
            lineStart = skipLineEnds();
        }
    }

    // True when a line ended here.
    bool skipLineEnds() {
        const std::size_t begin = at_;
        while (at_ < text_.size() && isLineEnd(text_[at_]))
            ++at_;
        return at_ != begin;
    }

    // To the next item; full rows on the way are read.
    void skipSeparators() {
        while (at_ < text_.size() && isDataSeparator(text_[at_])) {
            if (skipLineEnds())
                readRows();
            else
                ++at_;
        }
    }

    // One run of characters between separators: an item, or several that touch.
    void readToken() {
        const std::size_t begin = at_;
        std::size_t points = 0;
        std::size_t others = 0; // neither digit nor minus
        std::size_t digits = 0; // one after the other
        bool several = false;   // a sign after the first place, or more digits than a field has
        bool digitsTouch = false;
        for (; at_ < text_.size() && !isDataSeparator(text_[at_]) && text_[at_] != terminator; ++at_) {
            const char c = text_[at_];
            digits = isDigit(c) ? digits + 1 : 0;
            points += c == '.' ? 1 : 0;
            others += isDigit(c) || c == '-' ? 0 : 1;
            digitsTouch = digitsTouch || digits > placesHigh;
            several = several || digitsTouch || (c == '-' && at_ != begin);
        }
        const std::string_view token = text_.substr(begin, at_ - begin);
        if (low_ && points > 1)
            cutAfterPoints(token);
        else if (!low_ && others == 0 && several && TouchingFields::can(token))
            cutIntoFields(token);
        else if (!low_ && others == 0 && digitsTouch)
            items_.touching = true;
        else
            store(token);
    }

    void cutIntoFields(std::string_view token) {
        for (TouchingFields fields(token); !fields.atEnd() && !full();)
            store(fields.next());
    }

    // The character after each point is its number's last one, damaged or not. What follows the last point is
    // an item of its own when it holds a digit.
    void cutAfterPoints(std::string_view token) {
        while (!token.empty() && !full()) {
            const auto point = token.find('.');
            auto length = token.size();
            if (point != std::string_view::npos && point + 2 < token.size()) {
                const auto rest = token.substr(point + 2);
                if (std::any_of(rest.begin(), rest.end(), isDigit))
                    length = point + 2;
            }
            store(token.substr(0, length));
            token.remove_prefix(length);
        }
    }

    bool full() const { return next_ == 0 || items_.outOfRange || items_.touching; }

    void store(std::string_view item) {
        const DataNumber number = readDataNumber(item);
        items_.outOfRange = items_.outOfRange || !number.fits;
        items_.unreadable += number.whole ? 0 : 1;
        work_[--next_] = number.tenths;
    }

    // Readings after the terminator are not read, and the user is told.
    void noteMiddle() {
        const auto rest = text_.substr(at_ + 1);
        if (std::any_of(rest.begin(), rest.end(), isDigit))
            ++items_.unreadable;
    }

    // The work list itself where it is nearly full, else a list of the right size.
    // The work list itself where it is nearly full, else a list of the right size.
    void keepNewest() {
        const std::size_t first = std::max(next_, work_.size() - std::min(work_.size(), maximumKept));
        const auto begin = work_.begin() + static_cast<std::ptrdiff_t>(first);
        if (first > work_.size() / 2) {
            items_.readings.assign(begin, work_.end());
        } else {
            work_.erase(work_.begin(), begin);
            items_.readings = std::move(work_);
        }
    }

    std::string_view text_;
    bool low_;
    std::vector<std::int16_t> work_; // an item takes a character at least
    std::size_t next_;               // where in the work list the last item was stored
    std::size_t at_ = 0;
    DataItems items_;
};

} // namespace

bool isDataSeparator(char c) {
    return c == ' ' || c == ',' || (c >= '\t' && c <= '\r');
}

DataItems readDataItems(std::string_view text, bool low) {
    return ItemReader(text, low).read();
}

} // namespace tally
