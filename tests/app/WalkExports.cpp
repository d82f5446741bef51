// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkDesk.h"

#include <cmath>
#include <sstream>

namespace tally::testing {

namespace {

// The lines of a text, without their ends.
std::vector<std::string> linesIn(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::vector<double> numbersIn(std::string text) {
    for (char& c : text)
        c = c == ',' ? ' ' : c;
    std::istringstream in(text);
    std::vector<double> numbers;
    for (double number = 0; in >> number;)
        numbers.push_back(number);
    return numbers;
}

} // namespace

void WalkDesk::runExport(const Step& step) {
    if (model_.open.empty())
        return;
    const bool isTable = model_.shown == Shown::table || model_.shown == Shown::powerTable;
    if (step.act == Act::metering) {
        if (canClick("mnuitemexprep"))
            exportMetering(step.choice);
    } else if (step.act == Act::perLine) {
        if (canClick("mnuItemexpdata1perLine"))
            exportTable(true);
    } else if (canClick("MnuItemexpdatacsv")) {
        if (model_.shown == Shown::plot && !model_.exported)
            exportCsv(step.choice);
        else if (isTable)
            exportTable(false);
        else
            click("MnuItemexpdatacsv");
    }
}

void WalkDesk::exportCsv(unsigned choice) {
    const int slot = chooseSlot(choice);
    files.contents.erase("/d/Lotusint.csv");
    click("MnuItemexpdatacsv");
    ++told_; // done or refused
    const auto part = model_.part(slot);
    const OpenFile& file = model_.open[std::size_t(slot)];
    if (!part || file.now.mode != 'a') {
        if (files.contents.contains("/d/Lotusint.csv"))
            wrong_ = "a refused CSV export was written";
        return;
    }
    model_.current = slot;
    std::vector<double> written;
    for (const std::string& row : linesIn(files.contents["/d/Lotusint.csv"]))
        if (row.size() > 19)
            for (const double number : numbersIn(row.substr(19)))
                written.push_back(number);
    std::vector<double> expected;
    for (int i = part->first; i <= part->last; ++i)
        expected.push_back(file.at(i) / 10.0);
    if (written != expected)
        wrong_ = "the CSV export does not hold the readings";
    else if (linesIn(files.contents["/d/Lotusint.csv"])[0].substr(1, 17) !=
             screenTime(file.time(part->first)))
        wrong_ = "the CSV export begins at another time";
}

void WalkDesk::exportTable(bool perLine) {
    const char* name = perLine ? "mnuItemexpdata1perLine" : "MnuItemexpdatacsv";
    const bool isTable = model_.shown == Shown::table || model_.shown == Shown::powerTable;
    if (!isTable || model_.exported) {
        click(name);
        return;
    }
    const OpenFile& file = model_.open[std::size_t(model_.slot)];
    const std::string path = file.path.substr(0, file.path.size() - 3) + "prn";
    files.contents.erase(path);
    click(name);
    ++told_;
    model_.exported = true;
    model_.current = model_.slot;
    const auto lines = linesIn(files.contents[path]);
    if (lines.empty()) {
        wrong_ = "the table was not exported";
        return;
    }
    if (!perLine) {
        std::string table;
        for (std::size_t i = 1; i + 1 < lines.size(); ++i)
            table += lines[i] + "\r\n";
        wrong_ = differentTable(lines[0], table);
        return;
    }
    const Span part = *model_.part(model_.slot);
    for (int i = part.first; i <= part.last && wrong_.empty(); ++i) {
        const std::string& row = lines.at(std::size_t(1 + i - part.first));
        const auto numbers = numbersIn(row.substr(14));
        const double expected = model_.shown == Shown::powerTable ? model_.kilowatts(i) : file.at(i) / 10.0;
        if (row.substr(0, 14) != formatTime(file.time(i), "%y %m %d %H %M") || numbers.empty() ||
            std::fabs(numbers[0] - expected) > 0.051 + std::fabs(expected) * 1e-4)
            wrong_ = "one a row: " + row;
    }
}

void WalkDesk::exportMetering(unsigned choice) {
    files.contents.erase("/d/Lotusint.prn");
    const bool known = model_.powerKnown;
    const Span range = model_.displayed();
    const OpenFile& file = model_.open[0];
    int first = range.first;
    while (first <= range.last &&
           toCivil(file.time(first)).hour * 60 + toCivil(file.time(first)).minute >= 15)
        ++first;
    const int hours = (range.last - first + 1) / 4;
    const bool refusedAtOnce = file.now.mode != 'a' || model_.factor > 1 || hours < 1;
    if (!refusedAtOnce && !known)
        askVoltage(choice);
    if (!refusedAtOnce && model_.powerAllowed())
        prompt.inputs.push_back("ID");
    click("mnuitemexprep");
    ++told_;
    if (refusedAtOnce || !model_.powerAllowed()) {
        if (files.contents.contains("/d/Lotusint.prn"))
            wrong_ = "a refused report was written";
        return;
    }
    model_.powerKnown = true;
    model_.exported = true;
    const auto lines = linesIn(files.contents["/d/Lotusint.prn"]);
    if (int(lines.size()) != hours + 2) {
        wrong_ = "the report has another number of hours";
        return;
    }
    for (int hour = 0; hour < hours; ++hour) {
        double sum = 0;
        for (int quarter = 0; quarter < 4; ++quarter)
            sum += model_.kilowatts(first + 4 * hour + quarter);
        const double written = numbersIn(lines[std::size_t(hour) + 1].substr(40, 10)).at(0);
        if (std::fabs(written - sum / 4) > 0.51 + sum * 1e-5)
            wrong_ = "the report says another power: " + lines[std::size_t(hour) + 1].substr(0, 60);
    }
}

} // namespace tally::testing
