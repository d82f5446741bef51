// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

namespace tally::cli {

const std::vector<AddCommand>& allCommands() {
    static const std::vector<AddCommand> all = {
        // One a line, so that two changes do not meet.
        // clang-format off
        addInfo,
        addReadings,
        addSave,
        addCheck,
        addTable,
        addSummary,
        addPower,
        addPlot,
        addStudy,
        addLoading,
        addNotes,
        addForce,
        addExport,
        addSurvey,
        addBatch,
        addTypes,
        addPorts,
        addDownload,
        addStatus,
        addRecover,
        addInit,
        addJournal,
        addArchive,
        addCompletion,
        // clang-format on
    };
    return all;
}

} // namespace tally::cli
