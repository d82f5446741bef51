// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace tally {

// A run-time fault with the number and the description that the error report shows.
// Thrown where it happens, caught only by the command dispatcher.
class Fault : public std::runtime_error {
public:
    Fault(int number, const std::string& description, std::string subject = {})
        : std::runtime_error(description), number_(number), subject_(std::move(subject)) {}
    int number() const { return number_; }
    // The file or folder that it is about; may be empty.
    const std::string& subject() const { return subject_; }
    // The same fault about a file or folder.
    Fault about(const std::string& subject) const { return {number_, what(), subject}; }

private:
    int number_;
    std::string subject_;
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

// What may be done about a fault of a file; empty for the others.
std::string faultAdvice(const Fault& fault);

// The description, and under it the file that the fault is about and what may be done.
std::string faultMessage(const Fault& fault);

// The general report: "Error number N: " and the message, then on a line of its own the call point where it
// is not 0.
std::string faultReport(const Fault& fault, int callPoint = 0);

} // namespace tally
