// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tally {

// The facts of one open file, in the order of the columns that they stand in.
struct FileFacts {
    char modeLetter = 'a';        // 0: "a" to "l"
    std::string serial;           // 1: four characters of the header (bytes)
    ReadingTime start;            // 2: time of reading 0, the oldest
    int count = 0;                // 3: number of readings
    char typeLetter = ' ';        // 4: "V" marks a voltage recording
    std::int16_t largest = 0;     // 5: tenths
    std::int16_t smallest = 0;    // 6: tenths
    std::string path;             // 7: full path (UTF-8); empty marks the slot as free
    bool low = false;             // 8: readings carry one decimal
    ReadingTime headerTime;       // 9: as written in the file
    bool forced = false;          // 10: readings were forced
    std::string header;           // 11: the whole header text (bytes), after the repair of the older layout
    char form = ' ';              // 12: first character after the header; "T" for the T form
    int unreadable = 0;           // items that were no numbers, and a terminator in the middle
    bool notesUnreadable = false; // there is a notes file, but it could not be read
    bool complete = true;         // the file has its end mark; without it the file may have been cut

    char unit() const { return typeLetter == 'V' ? 'V' : 'A'; }
    const char* rangeWord() const { return low ? "LOW" : "HIGH"; }
};

// Readings of one file: the first and the last index, both inclusive; none when last < first.
struct Range {
    int first = 0;
    int last = -1;
    int entries() const { return last < first ? 0 : last - first + 1; }
    bool operator==(const Range&) const = default;
};

// Readings that a forcing replaced: what stood at `first` and after it.
struct ForcedEdit {
    int first = 0;
    std::vector<std::int16_t> before;
};

// The open recordings: the one model, owned by main and passed by reference.
struct Recordings {
    static constexpr int slotCount = 3;
    static constexpr int lastIndex = 42966; // highest index a reading can have
    static constexpr int maximumReadings = 42966;
    static constexpr int noFile = -1;
    static constexpr int cancelled = -2;

    std::array<FileFacts, slotCount + 1> gInfo;
    std::array<std::vector<std::int16_t>, slotCount>
        gReadings;                                            // tenths, oldest first, exactly `count` of them
    std::array<std::array<std::string, 4>, slotCount> gNotes; // Location, Circuit, Name, Other (UTF-8)
    std::array<std::vector<ForcedEdit>, slotCount> forcedEdits; // newest last
    // The readings as a file last held them, once some were forced; empty while nothing was.
    std::array<std::vector<std::int16_t>, slotCount> written;
    std::string gText;     // text of a save, or the result of CalcDate
    std::string gFileName; // path being opened or saved
    int ginx = noFile;
    int gDateX = 0;

    bool isOpen(int slot) const { return !gInfo[static_cast<std::size_t>(slot)].path.empty(); }
    const FileFacts& info(int slot) const; // throws Subscript outside 0 to 3
    int openCount() const;
    int freeSlot() const; // first free slot 0 to 2, or -1
    // Tenths; 0 at an index that the file has no reading for; throws Subscript outside 0 to 42966.
    std::int16_t reading(int slot, int index) const;
    // Every reading of a file; throws Subscript as `info` does.
    Range all(int slot) const { return {0, info(slot).count - 1}; }
    // Frees every slot.
    void closeAll();
};

// Intervals of a file: of a Min/Max/Avg recording the triples, counted from the newest reading; what is over
// at the oldest end is an interval of its own.
int intervalsOf(const FileFacts& info);

// The name part of a path ("a/b.dat" gives "b.dat").
std::string fileNameOf(const std::string& path);

// The time of the interval that a reading belongs to; the index may lie outside the file.
ReadingTime timeOf(const FileFacts& info, std::int64_t index);

// Leaves the time of reading gDateX of slot ginx in gText, as "hh:mm  MMM dd, yy".
void CalcDate(Recordings& recordings);

// Asks which of the open files a command is for: gives a slot 0 to 2, or -2 when cancelled.
class SlotChooser {
public:
    virtual ~SlotChooser() = default;
    virtual int choose(const Recordings& recordings, int pendingCommand) = 0;
};

// What the list of open files runs when it is answered.
namespace pending {
constexpr int notes = 1;
constexpr int table = 2;
constexpr int summary = 3;
constexpr int csvExport = 5;
constexpr int chooseOnly = 6;
} // namespace pending

// Sets ginx: -1 with no file, 0 with one, else the answer of the chooser.
void SelectFile(Recordings& recordings, SlotChooser& chooser, int pendingCommand = pending::chooseOnly);

} // namespace tally
