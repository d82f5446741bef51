// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Survey.h"

#include "app/DefaultFolder.h"
#include "app/Dispatcher.h"
#include "app/Printing.h"
#include "survey/SurveyDesk.h"
#include "survey/forms/LoadSurv.h"

namespace tally {

void TLY_Survey::mnuitemsurvfil_Click() {
    if (!startSurvey(survey_, services_.prompt))
        return;
    const SurveyServices services{
        .files = services_.files,
        .prompt = services_.prompt,
        .clock = services_.clock,
        .folder = folder_.forDialog(),
        .print = [this](const SurveyPaper& paper) { printing_.print(paper.title, {}, paper.text); },
        .preview = [this](const SurveyPaper& paper) { printing_.preview(paper.title, paper.text); },
        .attempt = [this](const std::function<Done()>& step) { dispatcher_.attempt(step); }};
    LoadSurv dialog(survey_, services, window_);
    dialog.exec();
}

} // namespace tally
