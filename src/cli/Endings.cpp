// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Endings.h"

#include "cli/Command.h"
#include "core/ModeTable.h"

#include <algorithm>

namespace tally::cli {

std::string whyEmpty(const std::string& typed) {
    return typed.empty() ? "'' names nothing; leave the option out, or give it a value" : std::string();
}

std::string endingOf(const std::string& path, const std::vector<std::string>& endings,
                     const std::string& option) {
    std::string lower = path;
    std::transform(lower.begin(), lower.end(), lower.begin(), lowerCase);
    std::string allowed;
    for (const std::string& ending : endings) {
        if (lower.ends_with("." + ending))
            return ending;
        allowed += (allowed.empty() ? "." : ending == endings.back() ? " or ." : ", .") + ending;
    }
    throw WrongUsage(option + ": '" + path + "' must end in " + allowed);
}

std::string withoutEnding(const std::string& path, const std::string& ending) {
    return path.substr(0, path.size() - ending.size() - 1);
}

} // namespace tally::cli
