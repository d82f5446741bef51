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

std::string faultReport(const Fault& fault, int callPoint) {
    std::string report = "Error number " + std::to_string(fault.number()) + ": " + fault.what();
    if (callPoint != 0)
        report += "\r\ngErrorCallPoint = " + std::to_string(callPoint);
    return report;
}

} // namespace tally
