// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TypedNumber.h"

#include "study/Decimal.h"

namespace tally::cli {

namespace {

WrongUsage wrong(const TypedNumber& number, const std::string& why) {
    return WrongUsage(number.option->get_name() + ": '" + number.text + "' " + why);
}

} // namespace

double TypedNumber::value() const {
    const auto number = study::decimalOf(text);
    if (!number)
        throw wrong(*this, "is no plain number");
    return number->value;
}

double TypedNumber::above0() const {
    const double number = value();
    if (number <= 0)
        throw wrong(*this, "is not above 0");
    return number;
}

double TypedNumber::notBelow1() const {
    const double number = value();
    if (number < 1)
        throw wrong(*this, "is below 1");
    return number;
}

void addNumber(CLI::App& command, TypedNumber& number, const std::string& name,
               const std::string& description) {
    number.option = command.add_option(name, number.text, description);
}

} // namespace tally::cli
