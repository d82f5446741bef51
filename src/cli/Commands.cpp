// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

namespace tally::cli {

const std::vector<AddCommand>& allCommands() {
    static const std::vector<AddCommand> all = {
        addInfo,  addReadings, addSave,     addCheck,  addTable,   addSummary, addPower,
        addPlot,  addStudy,    addLoading,  addNotes,  addForce,   addExport,  addSurvey,
        addTypes, addPorts,    addDownload, addStatus, addRecover, addInit,    addJournal,
    };
    return all;
}

} // namespace tally::cli
