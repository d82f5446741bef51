// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/Settings.h"

#include <string>
#include <string_view>

namespace tally {

inline constexpr std::string_view voltagePrompt =
    "Enter line voltage for power calculation\r\ninput must be volts, not 'KV'";
inline constexpr std::string_view powerFactorPrompt = "Enter Power Factor to be used \rmust be 1 or less";
inline constexpr std::string_view defaultVline = "13800";

// The stored line voltage as text, or the default; `storeVline` writes the default where nothing is stored.
std::string vlineOf(const Settings& settings);
std::string storeVline(Settings& settings);
// An answer other than the stored voltage is kept.
void keepVline(Settings& settings, const std::string& answer);
// Volts of an entry: its leading number, 0 for none. Throws Overflow beyond single precision.
double voltsOf(std::string_view vline);
// A quiet hint for an entry that is hardly meant as volts ("13.8", "abc", "-5"); empty otherwise.
std::string voltageHint(std::string_view vline);

// The power factor in use as the box offers it; 0 becomes 1.0 first.
std::string powerFactorPreset(Recordings& recordings);
// The answer of the box: empty keeps the old one. No range is checked. Throws Overflow.
void setPowerFactor(Recordings& recordings, std::string_view answer);
// The power factor in use: 1.0 in place of 0.
float powerFactorOf(const Recordings& recordings);

} // namespace tally
