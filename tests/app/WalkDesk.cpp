// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkDesk.h"

#include "app/forms/ForceRdgs.h"
#include "view/forms/DisplaySel.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace tally::testing {

namespace {

constexpr std::array<const char*, acts> names = {
    "open",    "close",      "plot",         "power",    "refresh", "mark",    "zoom",  "showAll",
    "back",    "forward",    "day",          "align",    "unmark",  "onePage", "scale", "table",
    "summary", "powerTable", "powerSummary", "factor",   "force",   "undo",    "save",  "saveWhole",
    "csv",     "textExport", "perLine",      "metering", "cancel"};

DiskFile made(char mode, bool volts, int count, int seed, const CivilTime& newest) {
    DiskFile file{mode, volts, true, toReadingTime(newest), {}};
    for (int i = 0; i < count; ++i)
        file.tenths.push_back((seed * 37 + i * 61) % 900 + 1);
    orderTriples(file);
    return file;
}

} // namespace

std::string textOf(const std::vector<Step>& steps) {
    std::string text;
    for (const Step& step : steps)
        text += std::string(text.empty() ? "" : ", ") + names.at(std::size_t(step.act)) + "(" +
                std::to_string(step.choice) + ")";
    return text;
}

WalkDesk::WalkDesk() {
    auto& disk = model_.disk;
    disk["/d/a.dat"] = made('a', false, 150, 1, {2024, 3, 16, 12, 0});
    disk["/d/b.dat"] = made('a', false, 60, 2, {2024, 3, 16, 14, 0});
    disk["/d/c.dat"] = made('a', false, 170, 3, {2024, 3, 16, 12, 0});
    disk["/d/v.dat"] = made('a', true, 100, 4, {2024, 3, 16, 12, 0});
    disk["/d/g.dat"] = made('g', false, 61, 5, {2024, 3, 16, 12, 0});
    disk["/d/h.dat"] = made('g', false, 30, 6, {2024, 3, 16, 12, 0});
    disk["/d/f.dat"] = made('f', false, 47, 7, {2024, 3, 16, 12, 0});
    for (const auto& [path, file] : disk)
        // The header's time lies two intervals after the newest reading.
        files.contents[path] = dataFile(file.mode, file.tenths, file.volts ? 'V' : 'A', true,
                                        headerTime(file.newest + 2 * file.minutes()));
}

std::string WalkDesk::take(const Step& step) {
    run(step);
    if (!wrong_.empty())
        return wrong_;
    return differences();
}

void WalkDesk::run(const Step& step) {
    switch (step.act) {
    case Act::open:
    case Act::close:
    case Act::save:
    case Act::saveWhole:
        return runFile(step);
    case Act::plot:
    case Act::refresh:
    case Act::mark:
    case Act::zoom:
    case Act::showAll:
    case Act::onePage:
    case Act::scale:
    case Act::table:
    case Act::summary:
        return runView(step);
    case Act::back:
    case Act::forward:
    case Act::day:
    case Act::align:
    case Act::unmark:
        return runRange(step);
    case Act::power:
    case Act::powerTable:
    case Act::powerSummary:
    case Act::factor:
        return runPower(step);
    case Act::force:
    case Act::undo:
        return runEdit(step);
    case Act::csv:
    case Act::textExport:
    case Act::perLine:
    case Act::metering:
        return runExport(step);
    case Act::cancel:
        return cancelOne(step.choice);
    }
}

int WalkDesk::chooseSlot(unsigned choice) {
    const int slot = int(choice % model_.open.size());
    if (model_.open.size() > 1)
        chooser.answers.push_back(slot);
    return slot;
}

void WalkDesk::runView(const Step& step) {
    const Shown plotShown = model_.powerView ? Shown::powerPlot : Shown::plot;
    const auto drawn = [&](Shown shown) {
        model_.shown = shown;
        model_.exported = false;
        selected_ = false;
    };
    switch (step.act) {
    case Act::plot: {
        if (!canClick("mnuItemViewPlot") || model_.open.empty())
            return;
        if (model_.open.size() > 1 && model_.open[0].now.stride() == 3) {
            model_.statistic = int(step.choice % 3) + 1;
            const char* captions[] = {"Average", "Maximum", "Minimum"};
            whenOpen<DisplaySel>([caption = captions[model_.statistic - 1]](DisplaySel& form) {
                for (auto* option : form.findChildren<QRadioButton*>())
                    if (option->text() == QString::fromLatin1(caption))
                        option->setChecked(true);
                form.findChild<QPushButton*>()->click();
            });
        }
        click("mnuItemViewPlot");
        model_.wholeRange();
        model_.powerView = false;
        return drawn(Shown::plot);
    }
    case Act::refresh:
        if (!canClick("mnuItemRefresh") || model_.open.empty())
            return;
        click("mnuItemRefresh");
        return drawn(plotShown);
    case Act::mark:
        return markPoints(step.choice);
    case Act::zoom:
        if (!canClick("mnuZoom") || model_.open.empty())
            return;
        click("mnuZoom");
        model_.zoom = model_.span;
        model_.visit(model_.zoom);
        return drawn(plotShown);
    case Act::showAll: {
        const bool chart = window.screen().page() == Screen::Page::chart;
        auto* all = window.findChild<QAction*>(QString::fromLatin1(chart ? "chartShowAll" : "textShowAll"));
        if (all == nullptr || !all->isVisible())
            return;
        all->trigger();
        model_.wholeRange();
        return drawn(model_.shown);
    }
    case Act::onePage:
        if (!canClick("mnuItemOnepgPlot") || model_.open.empty())
            return;
        click("mnuItemOnepgPlot");
        model_.wholeRange();
        return drawn(plotShown);
    case Act::scale:
        if (!canClick("mnuItemScale") || model_.open.empty())
            return;
        prompt.inputs.push_back(std::to_string(step.choice % 50));
        click("mnuItemScale");
        drawn(plotShown);
        if (plotShown == Shown::plot && window.screen().chart().plot().yMin != step.choice % 50)
            wrong_ = "the scale is not the one entered";
        return;
    default: {
        const bool table = step.act == Act::table;
        const char* name = table ? "mnuItemViewTable" : "mnuItemViewsummary";
        if (!canClick(name) || model_.open.empty())
            return;
        const int slot = chooseSlot(step.choice);
        click(name);
        if (!model_.part(slot))
            return refused();
        model_.current = model_.slot = slot;
        model_.shown = table ? Shown::table : Shown::summary;
        model_.exported = false;
    }
    }
}

void WalkDesk::runRange(const Step& step) {
    if (model_.open.empty() || model_.shown == Shown::start)
        return;
    switch (step.act) {
    case Act::back:
    case Act::forward:
        return goTo(step.act == Act::forward);
    case Act::day:
        return goToDay(step.choice);
    case Act::align:
        return align();
    default:
        if (model_.shown != Shown::plot && model_.shown != Shown::powerPlot)
            return;
        Q_EMIT window.screen().chart().spanLeft();
        model_.span = model_.displayed();
        model_.exported = false;
        selected_ = false;
    }
}

bool WalkDesk::shownAgain(const WalkModel& before) {
    const bool ofOneFile = model_.shown == Shown::table || model_.shown == Shown::summary;
    if (ofOneFile && !model_.part(model_.slot)) {
        model_ = before;
        refused();
        return false;
    }
    model_.exported = false;
    selected_ = false;
    return true;
}

void WalkDesk::goTo(bool forward) {
    const WalkModel before = model_;
    if (forward ? model_.place + 1 >= model_.trail.size() : model_.place == 0)
        return;
    click(forward ? "mnuItemForward" : "mnuItemBack");
    const auto empty = [this] { return model_.displayed().last < model_.displayed().first; };
    do {
        model_.place += forward ? 1 : std::size_t(-1);
        model_.zoom = model_.trail[model_.place];
    } while (empty() && (forward ? model_.place + 1 < model_.trail.size() : model_.place > 0));
    if (empty()) {
        model_ = before;
        return refused();
    }
    const auto range = model_.zoom;
    model_.span = range.value_or(Span{0, model_.open[0].now.intervals() - 1});
    shownAgain(before);
}

void WalkDesk::goToDay(unsigned choice) {
    const WalkModel before = model_;
    const auto day = model_.dayBeside(choice % 2 == 0 ? 1 : -1);
    click(choice % 2 == 0 ? "mnuItemNextDay" : "mnuItemPreviousDay");
    if (!day)
        return;
    model_.zoom = model_.span = *day;
    model_.visit(day);
    shownAgain(before);
}

void WalkDesk::align() {
    if (!canClick("mnuItemAlign"))
        return;
    const WalkModel before = model_;
    click("mnuItemAlign");
    if (!model_.byTime && !model_.canAlign())
        return refused();
    model_.byTime = !model_.byTime;
    if (shownAgain(before))
        model_.span = model_.displayed();
}

void WalkDesk::markPoints(unsigned choice) {
    if (model_.shown != Shown::plot && model_.shown != Shown::powerPlot)
        return;
    const Span shown = model_.displayed();
    const int points = shown.last - shown.first + 1;
    const int from = int(choice / 7 % unsigned(points));
    const int to = int(choice % unsigned(points));
    mark(from, to);
    model_.span = {shown.first + std::min(from, to), shown.first + std::max(from, to)};
    model_.exported = false;
    selected_ = true;
}

bool WalkDesk::askVoltage(unsigned choice) {
    const char* entries[] = {"13800", "4160", "12470", "600", "0"};
    prompt.inputs.push_back(entries[choice % 5]);
    model_.vline = entries[choice % 5];
    return true;
}

void WalkDesk::runPower(const Step& step) {
    if (step.act == Act::factor) {
        const char* factors[] = {"1", "0.9", "0.5", "1.2", "0"};
        prompt.inputs.push_back(factors[step.choice % 5]);
        click("mnuItemPF");
        model_.factor = step.choice % 5 == 4 ? 1 : std::atof(factors[step.choice % 5]);
        if (model_.shown == Shown::powerPlot)
            selected_ = false;
        if (model_.shown == Shown::powerTable || model_.shown == Shown::summary ||
            model_.shown == Shown::powerSummary || model_.shown == Shown::powerPlot)
            model_.exported = false;
        return;
    }
    const char* name = step.act == Act::power        ? "mnuItemViewPower"
                       : step.act == Act::powerTable ? "mnuItemViewPwrTable"
                                                     : "mnuItemViewpwrsummry";
    if (!canClick(name) || model_.open.empty())
        return;
    if (step.act == Act::power || !model_.powerKnown)
        askVoltage(step.choice);
    click(name);
    if (!model_.powerAllowed())
        return refused();
    model_.powerKnown = true;
    model_.exported = false;
    if (step.act == Act::power) {
        model_.wholeRange();
        model_.powerView = true;
        model_.shown = Shown::powerPlot;
        selected_ = false;
        return;
    }
    model_.shown = step.act == Act::powerTable ? Shown::powerTable : Shown::powerSummary;
    model_.slot = 0;
}

void WalkDesk::runEdit(const Step& step) {
    if (model_.open.empty())
        return;
    if (step.act == Act::force)
        return forceReadings(step.choice);
    window.findChild<QAction*>(QStringLiteral("undoForced"))->trigger();
    if (model_.forcings.empty())
        return;
    model_.undo();
    model_.exported = false;
    selected_ = false;
}

void WalkDesk::forceReadings(unsigned choice) {
    const bool slot = model_.current >= 0;
    if (slot && !model_.part(model_.current)) {
        click("mnuItemForceRdg");
        return refused();
    }
    const int tenths = int(choice * 13 % 999);
    const int which = int(choice / 3 % 3);
    whenOpen<ForceRdgs>([tenths, which](ForceRdgs& form) {
        form.findChild<QLineEdit*>(QStringLiteral("Text1"))
            ->setText(QStringLiteral("%1.%2").arg(tenths / 10).arg(tenths % 10));
        form.findChild<QRadioButton*>(QStringLiteral("Option%1").arg(which + 1))->setChecked(true);
        form.accept();
    });
    click("mnuItemForceRdg");
    if (!slot)
        return refused();
    model_.force(model_.current, tenths, which);
    model_.exported = false;
    selected_ = false;
}

void WalkDesk::runFile(const Step& step) {
    if (step.act == Act::save)
        return saveFile(step.choice);
    if (step.act == Act::open) {
        if (!canClick("mnuItemOpen"))
            return;
        auto path = std::next(model_.disk.begin(), step.choice % model_.disk.size());
        prompt.files.push_back(path->first);
        click("mnuItemOpen");
        if (!model_.open.empty() && model_.open[0].now.mode != path->second.mode)
            return refused();
        model_.opened(path->first);
        model_.exported = false;
        return;
    }
    if (step.act == Act::saveWhole) {
        for (int slot = 0; slot < int(model_.open.size()); ++slot) {
            if (model_.open[std::size_t(slot)].unsaved() == 0)
                continue;
            prompt.files.push_back("/d/whole.dat");
            for (auto* button : window.notices().findChildren<QPushButton*>())
                if (button->text() == QStringLiteral("Save As..."))
                    button->click();
            QApplication::processEvents();
            return model_.save(slot, "/d/whole.dat", true);
        }
        return;
    }
    if (!canClick("mnuItemClose") || model_.open.empty())
        return;
    const bool asked = std::any_of(model_.open.begin(), model_.open.end(),
                                   [](const OpenFile& file) { return file.unsaved() > 0; });
    if (asked) {
        prompt.answers.push_back(step.choice % 2 == 0 ? Answer::Yes : Answer::No);
        ++told_;
    }
    click("mnuItemClose");
    if (asked && step.choice % 2 != 0)
        return;
    model_.open.clear();
    model_.forcings.clear();
    model_.zoom.reset();
    model_.trail = {std::nullopt};
    model_.place = 0;
    model_.byTime = false;
    model_.powerKnown = model_.powerView = false;
    model_.vline = "0";
    model_.current = -1;
    model_.shown = Shown::start;
}

void WalkDesk::saveFile(unsigned choice) {
    if (!canClick("mnuItemSave") || model_.open.empty())
        return;
    const int slot = chooseSlot(choice);
    if (!model_.part(slot)) {
        click("mnuItemSave");
        return refused();
    }
    const std::string path = "/d/out" + std::to_string(choice % 2) + ".dat";
    // An open file that is longer is replaced only when asked; the walk says yes.
    const Span part = *model_.part(slot);
    const OpenFile& file = model_.open[std::size_t(slot)];
    const int count =
        model_.zoom ? (part.last - part.first + 1) * file.now.stride() : int(file.now.tenths.size());
    for (const OpenFile& other : model_.open)
        if (other.path == path && int(other.now.tenths.size()) > count) {
            prompt.answers.push_back(Answer::Yes);
            ++told_;
            break;
        }
    prompt.files.push_back(path);
    click("mnuItemSave");
    model_.current = slot;
    model_.save(slot, path, false);
}

void WalkDesk::cancelOne(unsigned choice) {
    if (model_.open.empty())
        return;
    if (choice % 3 == 0 && canClick("mnuItemViewPower")) {
        prompt.inputs.push_back(std::nullopt);
        click("mnuItemViewPower");
        if (std::atof(model_.vline.c_str()) == 0)
            model_.vline = "13800";
    } else if (choice % 3 == 1 && model_.open.size() > 1) {
        chooser.answers.push_back(Recordings::cancelled);
        click("mnuItemViewTable");
        model_.current = Recordings::cancelled;
    } else if (canClick("mnuItemSave") && model_.part(int(choice % model_.open.size()))) {
        const int slot = chooseSlot(choice);
        prompt.files.push_back(std::nullopt);
        click("mnuItemSave");
        model_.current = slot;
    }
}

} // namespace tally::testing
