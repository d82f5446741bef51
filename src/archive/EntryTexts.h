// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Kept.h"

#include <set>
#include <string>
#include <vector>

namespace tally::archive {

// What a list shows of a recording (UTF-8).
struct EntryTexts {
    std::string circuit;
    std::string station;
    std::string serial;
    std::string from; // "2009-03-15 08:30"
    std::string to;
    std::string peak;       // "123.4 A"
    std::string loadFactor; // "0.612", "-" for none
    std::string notes;      // those that are not shown as circuit or station
};
EntryTexts textsOf(const Entry& entry);

// A list of recordings in columns, for paper: a line of headings and a line a recording (CR LF).
struct PrintedList {
    std::string heading;
    std::string text;
};
PrintedList printedList(const std::vector<Entry>& entries);

// The name that a copy of a recording is given: that of the file that was added, without folder and without
// signs that no file name has; its ID when there is none. Ends with ".dat". Needs the sources.
std::string fileNameFor(const Entry& entry);
// The same, told apart from names that are taken by " (2)", " (3)", ..., and taken then.
std::string fileNameFor(const Entry& entry, std::set<std::string>& taken);

} // namespace tally::archive
