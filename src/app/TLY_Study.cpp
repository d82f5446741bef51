// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Study.h"

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/Views.h"
#include "app/forms/StatusPanels.h"
#include "core/TimeAxis.h"
#include "platform/XlsxWriter.h"
#include "study/forms/StudyForm.h"
#include "view/FilesTogether.h"

#include <algorithm>

namespace tally {

namespace {

constexpr qint64 halfDay = 12 * 60; // minutes

} // namespace

Done TLY_Study::mnuItemViewStudy_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    form().study(services_.recordings, {});
    screen_.showPage(form_, "load study of " + openNames(services_.recordings));
    services_.display.foreignShown(View::none);
    screen_.setPart({});
    status_.remark({});
    menus_.apply(MenuEvent::textShown);
    return {};
}

void TLY_Study::renew() {
    if (form_ && form_->isVisible())
        form_->study(services_.recordings, {});
}

study::StudyForm& TLY_Study::form() {
    if (form_)
        return *form_;
    form_ = new study::StudyForm({services_.files, services_.prompt, services_.settings, services_.clock,
                                  xlsxBytes,
                                  [this](const std::function<void()>& step) { dispatcher_.run(step); }},
                                 &screen_);
    QObject::connect(form_, &study::StudyForm::timeChosen, form_,
                     [this](qint64 minutes) { dispatcher_.run([this, minutes] { return goTo(minutes); }); });
    QObject::connect(&screen_, &Screen::wasReset, form_, &study::StudyForm::clear);
    return *form_;
}

Done TLY_Study::goTo(qint64 minutes) {
    const auto axis = timeAxis(std::vector<FileFacts>{services_.recordings.info(0)});
    if (!axis)
        return tl::make_unexpected(axis.error());
    const qint64 around = halfDay / axis->interval;
    const qint64 entry = (minutes - axis->start.minutes) / axis->interval;
    const auto clamped = [&](qint64 wanted) { return int(std::clamp<qint64>(wanted, 0, axis->points - 1)); };
    const int first = axis->reading(0, clamped(entry - around));
    const int last = axis->reading(0, clamped(entry + around), axis->stride - 1);
    services_.display.startPlot(services_.recordings);
    // The study laid the files side by side by time: so does the plot, or the others show another day.
    if (startsDiffer(services_.recordings))
        if (Done together = services_.display.showByTime(services_.recordings, true); !together)
            return together;
    services_.display.applyRange(services_.recordings, first, last);
    if (Done drawn = views_.redraw(); !drawn)
        return drawn;
    views_.showTogether();
    menus_.apply(MenuEvent::zoomed);
    return {};
}

} // namespace tally
