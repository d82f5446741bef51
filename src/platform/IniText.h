// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tally {

using IniSections = std::map<std::string, std::map<std::string, std::string>>;

// What an ini text says, and whether every line of it could be read.
struct IniText {
    IniSections sections;
    bool whole = true;
};

// "[section]" lines, "key=value" lines, blank lines and lines that begin with ";". A value in double quotes
// keeps its blanks; \\ \" \r \n \t stand for the character, any other backslash for itself. Bad lines are
// left out.
IniText parseIni(std::string_view text);

std::string formatIni(const IniSections& sections);

} // namespace tally
