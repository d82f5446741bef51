// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"

#include <optional>
#include <string>

namespace tally::cli {

// A number as it was typed, and whether it was. Each reading throws WrongUsage when it is no plain decimal
// number.
struct TypedNumber {
    CLI::Option* option = nullptr;
    std::string text;

    bool given() const { return option->count() > 0; }
    std::optional<std::string> entry() const { return given() ? std::optional(text) : std::nullopt; }
    double value() const;
    double above0() const;
    double notBelow1() const;
};

// Adds an option that takes a number.
void addNumber(CLI::App& command, TypedNumber& number, const std::string& name,
               const std::string& description);

} // namespace tally::cli
