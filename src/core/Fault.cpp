// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fault.h"

namespace tally {

namespace fault {
Fault overflow() {
    return {6, "Overflow"};
}
Fault subscript() {
    return {9, "Subscript out of range"};
}
Fault divisionByZero() {
    return {11, "Division by zero"};
}
Fault typeMismatch() {
    return {13, "Type mismatch"};
}
Fault fileNotFound() {
    return {53, "File not found"};
}
Fault deviceIo() {
    return {57, "Device I/O error"};
}
Fault diskFull() {
    return {61, "Disk full"};
}
Fault permissionDenied() {
    return {70, "Permission denied"};
}
Fault pathFileAccess() {
    return {75, "Path/File access error"};
}
Fault pathNotFound() {
    return {76, "Path not found"};
}
} // namespace fault

std::string faultAdvice(const Fault& fault) {
    switch (fault.number()) {
    case 53:
        return "Check its name and folder; it may have been moved or renamed.";
    case 57:
        return "Disk error: it could not be read or written to its end. Try again, or use another disk.";
    case 61:
        return "Make room on the disk, or choose a folder on another one.";
    case 70:
        return "You have no right to it. Ask for the right, or choose another folder.";
    case 75:
        return "It is a folder or a device, or cannot be opened. Choose a file.";
    case 76:
        return "Its folder is not there. Make it, or choose another one.";
    default:
        return {};
    }
}

std::string faultMessage(const Fault& fault) {
    if (fault.subject().empty())
        return fault.what();
    return fault.what() + ("\r\n" + fault.subject()) + "\r\n" + faultAdvice(fault);
}

std::string faultReport(const Fault& fault, int callPoint) {
    std::string report = "Error number " + std::to_string(fault.number()) + ": " + faultMessage(fault);
    if (callPoint != 0)
        report += "\r\ngErrorCallPoint = " + std::to_string(callPoint);
    return report;
}

} // namespace tally
