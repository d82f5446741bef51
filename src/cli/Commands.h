// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"

// One line per command; each stands in a file of its own, named after it.
namespace tally::cli {

void addInfo(CLI::App& program, Context& context);
void addReadings(CLI::App& program, Context& context);
void addSave(CLI::App& program, Context& context);
void addCheck(CLI::App& program, Context& context);
void addTable(CLI::App& program, Context& context);
void addSummary(CLI::App& program, Context& context);
void addPower(CLI::App& program, Context& context);
void addPlot(CLI::App& program, Context& context);
void addStudy(CLI::App& program, Context& context);
void addLoading(CLI::App& program, Context& context);
void addNotes(CLI::App& program, Context& context);
void addForce(CLI::App& program, Context& context);
void addExport(CLI::App& program, Context& context);
// table, opendss and gridlabd, below export.
void addTableExports(CLI::App& exports, Context& context);
void addSurvey(CLI::App& program, Context& context);
void addBatch(CLI::App& program, Context& context);
void addTypes(CLI::App& program, Context& context);
void addPorts(CLI::App& program, Context& context);
void addDownload(CLI::App& program, Context& context);
void addStatus(CLI::App& program, Context& context);
void addRecover(CLI::App& program, Context& context);
void addInit(CLI::App& program, Context& context);
void addJournal(CLI::App& program, Context& context);
void addArchive(CLI::App& program, Context& context);
void addCompletion(CLI::App& program, Context& context);

} // namespace tally::cli
