// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Export.h"

#include "core/ModeTable.h"
#include "export/CsvData.h"
#include "export/ScreenTime.h"
#include "view/RunningTime.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tally {

namespace {

constexpr std::size_t dateChars = 18;
constexpr std::size_t mostFields = 10;
constexpr std::string_view timePattern = "%y %m %d %H %M";
constexpr std::string_view screenPattern = "%H:%M  %b %d, %y";
constexpr std::string_view averageHeader = "yy mm dd hh mm Reading\r\n";
constexpr std::string_view minMaxAvgHeader = "yy mm dd hh mm Avg Max Min\r\n";

struct ModeParameters {
    std::size_t perLine;     // values in a table line
    std::size_t perInterval; // values of an interval
    int minutes;             // interval
    std::size_t intervals() const { return perLine / perInterval; }
};

ModeParameters parametersOf(char letter) {
    if (!isMode(letter))
        letter = 'a';
    const int minutes = modeRow(letter).minutes;
    if (isMinMaxAvg(letter))
        return {6, 3, minutes};
    return {minutes == 15 ? 8U : minutes == 5 ? 6U : 10U, 1, minutes};
}

using Fields = std::array<std::string_view, mostFields>;

// The values of a line; those that it does not have are empty.
Fields fieldsOf(std::string_view line) {
    Fields fields;
    std::size_t from = dateChars;
    for (std::string_view& field : fields) {
        while (from < line.size() && line[from] == ' ')
            ++from;
        auto to = from;
        while (to < line.size() && line[to] != ' ')
            ++to;
        field = line.substr(from, to - from);
        from = to;
    }
    return fields;
}

// Takes the next line from a table; line feeds do not count.
std::string_view nextLine(std::string_view& table) {
    const auto end = std::min(table.find('\r'), table.size());
    const auto line = table.substr(0, end);
    table.remove_prefix(std::min(end + 1, table.size()));
    while (!table.empty() && table.front() == '\n')
        table.remove_prefix(1);
    return line;
}

// Text that grows at its end; room is made ahead, so that a field costs no more than its copy.
class Appender {
public:
    explicit Appender(std::string text) : text_(std::move(text)), used_(text_.size()) {}

    // Makes room for so many characters.
    void reserve(std::size_t more) {
        if (text_.size() - used_ < more)
            text_.resize(2 * text_.size() + more);
    }
    void add(std::string_view part) {
        std::copy(part.begin(), part.end(), text_.begin() + static_cast<std::ptrdiff_t>(used_));
        used_ += part.size();
    }
    std::string take() {
        text_.resize(used_);
        return std::move(text_);
    }

private:
    std::string text_;
    std::size_t used_;
};

// What an interval has besides its values: the time, its line end, a blank for each value.
constexpr std::size_t mostBesideValues = 24;

void addIntervals(Appender& text, const Fields& fields, const ModeParameters& mode, RunningTime& time) {
    for (std::size_t j = 0; j < mode.intervals(); ++j) {
        bool ended = false;
        for (std::size_t k = 0; k < mode.perInterval; ++k) {
            const std::string_view field = fields[j * mode.perInterval + k];
            ended = field.empty();
            if (ended)
                break;
            if (k == 0) {
                text.add(time.text());
                time.advance(mode.minutes);
            }
            text.add(" ");
            text.add(field);
        }
        text.add("\r\n");
        if (ended)
            return;
    }
}

} // namespace

PerLineText onePerLineText(std::string_view table, char modeLetter) {
    const ModeParameters mode = parametersOf(modeLetter);
    Appender text{std::string(isMinMaxAvg(modeLetter) ? minMaxAvgHeader : averageHeader)};
    text.reserve(2 * table.size());
    RunningTime time(timePattern, {});
    // The time that a line has when it follows on the one before, as it is written there.
    RunningTime expected(screenPattern, {});
    bool tooShort = false;
    while (!table.empty()) {
        const std::string_view line = nextLine(table);
        tooShort = line.size() < dateChars;
        if (tooShort)
            break;
        if (!line.starts_with(expected.text()))
            expected.set(parseScreenTime(line));
        time.set(expected.time());
        text.reserve(mode.intervals() * mostBesideValues + line.size());
        addIntervals(text, fieldsOf(line), mode, time);
        expected.advance(mode.minutes * static_cast<int>(mode.intervals()));
    }
    return {text.take(), tooShort};
}

ExportOutcome Export(const ExportDesk& desk, const std::string& title, bool onePerLine) {
    const Recordings& recordings = desk.recordings;
    const int slot = recordings.ginx;
    if (slot < 0 || slot >= Recordings::slotCount || !recordings.isOpen(slot)) {
        desk.prompt.tell(std::string(noFileToExport));
        return ExportOutcome::noFile;
    }
    const FileFacts& info = recordings.info(slot);
    const std::string path =
        info.path.substr(0, info.path.size() - std::min<std::size_t>(3, info.path.size())) + "prn";
    if (refuseOwnFile(desk, path))
        return ExportOutcome::ownFile;
    if (!onePerLine) {
        desk.files.write(path, title + "\r\n" + recordings.gTable + "\r\n");
    } else {
        PerLineText made = onePerLineText(recordings.gTable, info.modeLetter);
        if (!made.lineTooShort)
            made.text += "\r\n";
        desk.files.write(path, made.text);
        if (made.lineTooShort) {
            desk.prompt.tell(std::string(shortLineError));
            return ExportOutcome::tableError;
        }
    }
    desk.state.viewKind = ViewKind::none;
    desk.prompt.tell(path + " saved OK");
    return ExportOutcome::saved;
}

ExportOutcome MnuItemexpdatacsv_Click(const ExportDesk& desk, const std::string& title) {
    if (desk.state.viewKind == ViewKind::dataPlot)
        return CsvData(desk);
    if (desk.state.viewKind == ViewKind::table)
        return Export(desk, title, false);
    return ExportOutcome::noView;
}

ExportOutcome mnuItemexpdata1perLine_Click(const ExportDesk& desk, const std::string& title) {
    if (desk.state.viewKind != ViewKind::table)
        return ExportOutcome::noView;
    return Export(desk, title, true);
}

} // namespace tally
