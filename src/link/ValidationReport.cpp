// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ValidationReport.h"

#include "link/InsertErrors.h"

namespace tally {

namespace {

std::string item(const std::string& finding) {
    return "   \xE2\x80\xA2  " + finding + "\r\n";
}

} // namespace

std::string ValidationCounts::result() const {
    if (clean())
        return {};
    std::string joined = std::to_string(badLines);
    for (const int count : {over999, count999, ctrlZ, badChars})
        joined += " " + std::to_string(count);
    return joined;
}

std::string errorReport(const ValidationCounts& counts) {
    if (counts.clean())
        return {};
    std::string text = "Downloaded data has the following error(s):\r\n";
    if (counts.badLines != 0)
        text += item(std::to_string(counts.badLines) + " line(s) with an incorrect number of readings");
    if (counts.over999 != 0)
        text += item(std::to_string(counts.over999) + " reading(s) over 999");
    if (counts.ctrlZ != 1)
        text +=
            item(std::to_string(counts.ctrlZ) + " terminating ctrl/z characters found (should be exactly 1)");
    if (counts.badChars != 0)
        text += item(std::to_string(counts.badChars) + " bad character(s)") +
                "       (ASCII value of first bad character = " + std::to_string(*counts.firstBadChar) +
                ")\r\n";
    return text + "\r\nDo you want to save this file anyway?\r\n"
                  " (If you click 'No' you can try another Download.)";
}

std::string report999(const ValidationCounts& counts, bool changed) {
    if (counts.count999 == 0)
        return {};
    return "Download had " + std::to_string(counts.count999) + " '999' reading(s)\r\n" +
           (changed ? "(which was/were converted to '000')" : "(which was/were left as is)");
}

bool judgeDownload(std::string& gText, const RunFlags& flags, Prompt& prompt) {
    InsertErrors(gText, flags, prompt);
    const ValidationCounts counts = validate(gText, flags.enableChange999sTo000);
    const std::string about999 = report999(counts, flags.enableChange999sTo000);
    if (flags.enable999CountReport && !about999.empty())
        prompt.tell(about999);
    if (!flags.enableErrorReport || counts.clean())
        return true;
    return prompt.show(
               {.text = errorReport(counts), .buttons = Buttons::YesNo, .defaultAnswer = Answer::Yes}) ==
           Answer::Yes;
}

} // namespace tally
