// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// The nearest 16-bit whole number, halves to even. Throws Overflow outside the range, also for no number.
std::int16_t toInt16(double value);

// The 16-bit whole number that a whole text stands for. Throws Type mismatch when it is no number, Overflow.
std::int16_t textToInt16(std::string_view text);

// The largest whole number not above the value.
double Int(double value);

// The leading number of a text (blanks skipped, point as decimal sign, exponent allowed); 0 for none,
// infinite for one that is too large.
double Val(std::string_view text);

// A text that is wholly a decimal number: digits with at most one point, a minus sign before them; nothing
// for anything else, an exponent included.
std::optional<double> plainNumber(std::string_view text);

// A number as text, shortest form that reads back: "12", "12.5", "-.5" is written "-0.5".
std::string plain(double value);
std::string plain(float value);

// Tenths as plain text in units: 120 gives "12", 125 gives "12.5".
std::string plainTenths(std::int32_t tenths);

// plain() with the leading blank of a positive number.
std::string Str(double value);

// How many of a thing, in the form that the number asks for: "1 reading", "2 readings".
std::string counted(std::int64_t number, std::string_view thing);

// A number through a pattern of literal text around one run of "#", "0", "," and "." places ("  000.0",
// "###,##0"). "0" places set the minimum number of digits, "," groups by thousands; halves are rounded away
// from zero.
std::string Format(double value, std::string_view pattern);
std::string Format(float value, std::string_view pattern);

} // namespace tally
