// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

namespace tally::cli {

const std::vector<AddCommand>& allCommands() {
    static const std::vector<AddCommand> all = {
        // clang-format off: a line each, so that two changes do not meet
        addInfo,  addReadings, addSave,   addCheck,   addTable,  addSummary, addPower, addPlot,
        addStudy, addLoading,  addNotes,  addForce,   addExport, addSurvey,  addBatch, addTypes,
        addPorts, addDownload, addStatus, addRecover, addInit,   addJournal,
        // clang-format on
    };
    return all;
}

} // namespace tally::cli
