// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

namespace tally {

// A run-time fault with the number and the description that the error report shows.
// Thrown where it happens, caught only by the command dispatcher.
class Fault : public std::runtime_error {
public:
    Fault(int number, const std::string& description) : std::runtime_error(description), number_(number) {}
    int number() const { return number_; }

private:
    int number_;
};

namespace fault {
Fault overflow();         // 6
Fault subscript();        // 9
Fault divisionByZero();   // 11
Fault typeMismatch();     // 13
Fault fileNotFound();     // 53
Fault deviceIo();         // 57
Fault diskFull();         // 61
Fault permissionDenied(); // 70
Fault pathFileAccess();   // 75
Fault pathNotFound();     // 76
} // namespace fault

// The general report: "Error number N: description", and the call point on a second line where it is not 0.
std::string faultReport(const Fault& fault, int callPoint = 0);

} // namespace tally
