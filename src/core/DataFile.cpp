// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataFile.h"

namespace tally {

namespace {

std::string reasonOf(DataRefusal refusal) {
    switch (refusal) {
    case DataRefusal::noHeader:
        return "It has no header of an instrument.";
    case DataRefusal::badMode:
        return "The mode letter in its header is none of a to l.";
    case DataRefusal::badTime:
        return "The time in its header is no date and time.";
    case DataRefusal::noReadings:
        return "There are no readings after its header.";
    case DataRefusal::outOfRange:
        return "One of its readings is larger than a recording can hold.";
    case DataRefusal::touching:
        return "Its readings run into each other and cannot be told apart.";
    case DataRefusal::tooLong:
        return "It is far longer than a recording and has no end mark.";
    }
    return {};
}

} // namespace

DataBytes readDataBytes(const Files& files, const std::string& path) {
    // One byte more than is used tells whether the file goes on.
    DataBytes data{files.read(path, maximumDataBytes + 1)};
    data.cutShort = data.bytes.size() > maximumDataBytes;
    if (data.cutShort)
        data.bytes.resize(maximumDataBytes);
    return data;
}

std::string dataAdvice(DataRefusal refusal) {
    return reasonOf(refusal) + " The file was not changed. Try another copy of it, or download again.";
}

} // namespace tally
