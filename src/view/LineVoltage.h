// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Settings.h"
#include "view/PowerValues.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

inline constexpr std::string_view voltagePrompt =
    "Enter line voltage for power calculation\r\ninput must be volts, not 'KV'";
inline constexpr std::string_view powerFactorPrompt = "Enter Power Factor to be used \rmust be 1 or less";
inline constexpr std::string_view defaultVline = "13800";

// What power is worked out with.
struct PowerBasis {
    std::string vline = std::string(defaultVline); // line voltage in volts, as it was entered
    float factor = 1.0F;                           // power factor, not 0

    // Both throw Overflow beyond single precision.
    double volts() const;
    PowerScale scale() const;
};

// Whether a line voltage is stored; 0 counts as none, and so does what is no number.
bool hasVline(const Settings& settings);
// The stored line voltage as text, or the default; `storeVline` writes the default where none is stored.
std::string vlineOf(const Settings& settings);
std::string storeVline(Settings& settings);
// An answer other than the stored voltage is kept.
void keepVline(Settings& settings, const std::string& answer);

// Volts of an entry: its leading number, 0 for none; a comma before three digits groups thousands. Throws
// Overflow beyond single precision.
double voltsOf(std::string_view vline);
// The same for an entry that is wholly a number; nothing otherwise.
std::optional<double> plainVolts(std::string_view entry);
// What the status line says of an entry that is hardly meant as volts ("13.8"), not wholly a number or counts
// as none: with the value that is used. Empty otherwise.
std::string voltageHint(std::string_view entry);

// The power factor of an answer: its leading number in single precision; 0 counts as 1. Not checked
// against 1. Throws Overflow.
float powerFactorOf(std::string_view answer);
// What the status line says of an answer that is not wholly a number, or 0; empty otherwise.
std::string powerFactorHint(std::string_view answer);

} // namespace tally
