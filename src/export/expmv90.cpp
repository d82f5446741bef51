// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/expmv90.h"

#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "core/Text1252.h"
#include "export/MeteringText.h"
#include "export/ReportPower.h"
#include "view/LineVoltage.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace tally {

namespace {

ExportOutcome refuse(const ExportDesk& desk, ExportOutcome outcome, std::string_view text) {
    desk.prompt.tell(std::string(text));
    return outcome;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

// Text that would end its quoted field, or its line, too early.
bool breaksField(std::string_view answer) {
    return answer.find('"') != std::string_view::npos || std::any_of(answer.begin(), answer.end(), isControl);
}

std::optional<std::string> askIdentifier(const ExportDesk& desk, const std::string& preset) {
    return desk.prompt.input(
        {.text = "Enter Recorder ID\rNo More Than 14 Characters\r\rPower Factor In Use " +
                 plain(powerFactorOf(desk.recordings)) + "; Use OPTIONS to Alter \r",
         .preset = preset});
}

} // namespace

ExportOutcome expmv90(const ExportDesk& desk, std::string& recorderId, const MakePower& makePower) {
    const Recordings& recordings = desk.recordings;
    if (!recordings.isOpen(0))
        return refuse(desk, ExportOutcome::noFile, noFileToExport);
    const FileFacts& info = recordings.info(0);
    const char letter = lowerCase(info.modeLetter);
    if (letter != 'a' && letter != 'd')
        return refuse(desk, ExportOutcome::wrongMode, meteringWrongMode);
    const float powerFactor = powerFactorOf(recordings);
    if (std::fabs(powerFactor) > 1.0F)
        return refuse(desk, ExportOutcome::badFactor, meteringBadFactor);
    const ShownRange range = reportRange(recordings, desk.state);
    const WholeHours hours = wholeHours(timeOf(info, range.first), range.entries());
    if (hours.count == 0)
        return refuse(desk, ExportOutcome::noWholeHour, meteringNoWholeHour);
    const std::string path = exportPath(desk, 0, std::string(meteringName));
    if (refuseOwnFile(desk, path))
        return ExportOutcome::ownFile;

    if (!powerCovers(desk.state, range) && !(makePower() && powerCovers(desk.state, range)))
        return ExportOutcome::noPower;
    const auto answer = askIdentifier(desk, recorderId);
    if (!answer)
        return ExportOutcome::cancelled;
    if (breaksField(*answer))
        return refuse(desk, ExportOutcome::badId, meteringBadId);
    const auto kilowatts = std::span(desk.state.power)
                               .subspan(static_cast<std::size_t>(range.first - desk.state.powerFirst),
                                        static_cast<std::size_t>(range.entries()));
    const std::string field = identifierField(*answer);
    desk.files.write(path, meteringText(field, kilowatts, hours, powerFactor) + "\r\n");
    recorderId = toUtf8(field.substr(0, field.find_last_not_of(' ') + 1));
    desk.state.viewKind = ViewKind::none;
    desk.prompt.tell(path + "  saved OK  ");
    return ExportOutcome::saved;
}

} // namespace tally
