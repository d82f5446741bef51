// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/expmv90.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "core/Text1252.h"

#include <algorithm>
#include <cmath>

namespace tally {

namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

// Text that would end its quoted field, or its line, too early.
bool breaksField(std::string_view answer) {
    return answer.find('"') != std::string_view::npos || std::any_of(answer.begin(), answer.end(), isControl);
}

} // namespace

Expected<MeteringPlan> planMetering(const Recordings& recordings, const Range& range, float powerFactor,
                                    const ExportPlace& place) {
    if (!recordings.isOpen(0))
        return refuse(std::string(noFileToExport));
    const FileFacts& info = recordings.info(0);
    const char letter = lowerCase(info.modeLetter);
    if (letter != 'a' && letter != 'd')
        return refuse(std::string(meteringWrongMode));
    if (std::fabs(powerFactor) > 1.0F)
        return refuse(std::string(meteringBadFactor));
    const WholeHours hours = wholeHours(timeOf(info, range.first), range.entries());
    if (hours.count == 0)
        return refuse(std::string(meteringNoWholeHour));
    const std::string path = exportPath(recordings, 0, std::string(meteringName), place);
    if (const auto free = checkNotOpen(recordings, path, place.files); !free)
        return tl::make_unexpected(free.error());
    return MeteringPlan{range, hours, path};
}

InputQuestion recorderQuestion(float powerFactor, const std::string& preset) {
    return {.text = "Enter Recorder ID\rNo More Than 14 Characters\r\rPower Factor In Use " +
                    plain(powerFactor) + "; Use OPTIONS to Alter \r",
            .preset = preset};
}

Expected<Exported> expmv90(const MeteringPlan& plan, const Power& power, const std::string& identifier,
                           Files& files) {
    if (breaksField(identifier))
        return refuse(std::string(meteringBadId));
    if (power.range != plan.range)
        throw fault::subscript();
    const std::string text =
        meteringText(identifierField(identifier), power.kilowatts, plan.hours, power.basis.factor);
    return writeExport(files, plan.path, text + "\r\n", "  saved OK  ");
}

std::string keptIdentifier(const std::string& identifier) {
    const std::string field = identifierField(identifier);
    return toUtf8(field.substr(0, field.find_last_not_of(' ') + 1));
}

} // namespace tally
