// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// So many characters of a header from a column on; columns are counted from 0.
struct HeaderField {
    std::size_t at;
    std::size_t length;
    constexpr std::size_t end() const { return at + length; }
};

// The columns of the header line (bytes) that an instrument sends and a data file keeps.
namespace column {
inline constexpr HeaderField model{0, 3};         // family initial and two more characters
inline constexpr HeaderField type{2, 1};          // "V" marks a voltage recording
inline constexpr HeaderField mode{3, 1};          // in upper case once the recording has stopped
inline constexpr HeaderField serial{7, 4};        // serial number
inline constexpr HeaderField time{30, 14};        // "mm-dd-yy hh:mm"
inline constexpr HeaderField battery{44, 8};      // "   Vbatt", which also tells the layout
inline constexpr HeaderField batteryLabel{47, 5}; // "Vbatt"
inline constexpr HeaderField batteryValue{53, 3}; // hexadecimal digits
inline constexpr HeaderField olderTime{46, 14};   // where the time stands in the older layout
// Behind a header that ends with its time: carriage return, line feed, then this character.
inline constexpr HeaderField afterBrief{46, 1};
} // namespace column

// What the model codes begin with; a low battery sends them in lower case.
inline constexpr std::string_view familyInitials = "HPK";
// Whether a character, in either case, is one of them.
bool isFamilyInitial(char c);

// A field, or as much of it as the header has.
std::string_view headerField(std::string_view header, HeaderField field);

// The mode letter in lower case; "a" for a blank or a header that ends before it.
char modeLetterOf(std::string_view header);
// Column 4 as it was sent: in lower case while the instrument is running.
bool isRunning(std::string_view header);
// Longer than 51 characters and no "   Vbatt" in its place: the time stands further right.
bool isOlderLayout(std::string_view header);
// Where the time stands in this header.
HeaderField timeField(std::string_view header);
// The time of a header in either layout; nothing when the field is no date and time.
std::optional<ReadingTime> timeOf(std::string_view header);
// Volts; nothing without label or three hexadecimal digits.
std::optional<double> batteryVolts(std::string_view header);

// Writes a time into its field; a header that is too short is filled up with blanks.
void putTime(std::string& header, HeaderField field, ReadingTime time);
// In the older layout copies the time to where it stands today. False, nothing changed, when the header ends
// before its time does.
bool repairOlderLayout(std::string& header);

} // namespace tally
