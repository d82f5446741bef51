// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Survey.h"

#include "app/TLY.h"
#include "app/TLY_File.h"
#include "app/TLY_Paper.h"
#include "survey/SurveyDesk.h"
#include "survey/forms/LoadSurv.h"

namespace tally {

void TLY_Survey::mnuitemsurvfil_Click() {
    const Services& s = window_.services();
    if (!startSurvey(survey_, s.prompt))
        return;
    const SurveyServices services{
        .files = s.files,
        .prompt = s.prompt,
        .clock = s.clock,
        .folder = window_.file().folder(),
        .print = [this](const SurveyPaper& paper) { window_.paper().print(paper.title, paper.text); },
        .preview = [this](const SurveyPaper& paper) { window_.paper().preview(paper.title, paper.text); },
        .attempt = [this](const std::function<void()>& step) { window_.dispatcher().attempt(step); }};
    LoadSurv dialog(survey_, services, &window_);
    dialog.exec();
}

} // namespace tally
