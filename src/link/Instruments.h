// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/InstrumentState.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

constexpr int customType = 9;
constexpr int autoSelectType = 11;
constexpr int highestType = 11;

// The display name of a type code; empty for code 2 and outside -1 to 11. Code -1 throws Division by zero.
std::string InstrumentName(int code);

// What the option button of a type, 1 to 11, says; empty for other codes.
std::string_view optionCaption(int code);

// Takes a type code 0 to 11 into force with its settings, sample limit and cable order. Code 0 leaves those
// three as they are; automatic selection starts with the settings that worked last. Throws Subscript outside
// 0 to 11.
void applySelection(InstrumentState& instrument, int code);

// The selection of a type while its dialog is open: taken into force step by step, or put back.
class TypeChoice {
public:
    explicit TypeChoice(InstrumentState& instrument) : instrument_(instrument), before_(instrument) {}
    // Takes a type code 1 to 11 into force; with none the selection keeps its code.
    void apply(std::optional<int> code);
    // Puts back what was in force before; values set for the Custom type stay.
    void cancel();

private:
    InstrumentState& instrument_;
    InstrumentState before_;
};

// Whether the properties of the type in force can be changed: those of Custom alone.
bool hasOwnProperties(const InstrumentState& instrument);
// Sets the properties of the Custom type and takes them into force; nothing is done for any other type.
void setProperties(InstrumentState& instrument, const std::string& settings, std::int32_t samples);

// Whether a type is a voltage recorder, which asks for its display switch before a download.
bool isVoltageRecorder(int code);

// The code, 1 to 11, that a text names: the code itself, a display name or a caption. Nothing for any other.
std::optional<int> typeFromText(std::string_view text);

} // namespace tally
