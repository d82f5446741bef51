// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"
#include "core/Settings.h"
#include "view/DisplayState.h"
#include "view/Plot.h"

#include <string>
#include <string_view>

namespace tally {

enum class PowerRefusal { none, notAmps, notAverage };

// Whether the open files can be shown as power; the last file that fails decides which refusal it is.
PowerRefusal checkPower(const Recordings& recordings);
// The text of the message box; empty for none.
std::string_view refusalText(PowerRefusal refusal);

// What Power View > Power Plot resets before it draws: the whole first file, no span, not on one page, no y
// scale; the power plot becomes the current view.
void startPower(Recordings& recordings, DisplayState& state);

// Works out power, energy and extremes of the displayed range at a line voltage in volts, and the power plot.
// Refused or thrown (Overflow), nothing has changed. A power factor of 0 becomes 1.0. The first line of the
// title is the power title line.
PowerRefusal DisplPlotPwr(Recordings& recordings, DisplayState& state, double volts, const Clock& clock,
                          Plot& out);

// startPower and DisplPlotPwr as one step: refused or thrown, the range and the flags stay as they were too.
PowerRefusal viewPower(Recordings& recordings, DisplayState& state, double volts, const Clock& clock,
                       Plot& out);

// The power title line alone.
std::string powerTitle(const Recordings& recordings, double volts);

inline constexpr std::string_view voltagePrompt =
    "Enter line voltage for power calculation\r\ninput must be volts, not 'KV'";
inline constexpr std::string_view powerFactorPrompt = "Enter Power Factor to be used \rmust be 1 or less";
inline constexpr std::string_view defaultVline = "13800";

// The stored line voltage as text, or the default; `storeVline` writes the default where nothing is stored.
std::string vlineOf(const Settings& settings);
std::string storeVline(Settings& settings);
// An answer other than the stored voltage is kept.
void keepVline(Settings& settings, const std::string& answer);
// Volts of an entry: its leading number. Throws Overflow beyond single precision.
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
