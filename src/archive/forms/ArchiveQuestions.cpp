// SPDX-License-Identifier: GPL-3.0-or-later
// What the archive's window asks: each question on a thread of its own, answered on the window's.
#include "app/forms/NoticeBar.h"
#include "archive/CircuitGrowth.h"
#include "archive/Day.h"
#include "archive/SearchFields.h"
#include "archive/forms/ArchiveForm.h"
#include "archive/forms/CalendarView.h"
#include "archive/forms/GrowthView.h"
#include "archive/forms/RecordingTable.h"
#include "archive/forms/SearchBar.h"
#include "core/forms/Words.h"

#include <QLabel>
#include <QTabWidget>

namespace tally::archive {

namespace {

enum Tab { recordingsTab, calendarTab, growthTab };

QString sumText(const Stats& stats) {
    QString text =
        QStringLiteral("%L1 recording(s), %L2 circuit(s)").arg(stats.recordings).arg(stats.circuits);
    if (stats.days)
        text += QStringLiteral(", %1 to %2")
                    .arg(words(dayText(stats.days->first)), words(dayText(stats.days->last)));
    return text;
}

std::unordered_map<Id, Spark> sparksOf(ArchiveStore& store, const ArchiveTools& tools,
                                       const std::vector<Entry>& entries) {
    std::unordered_map<Id, Spark> sparks;
    std::unordered_map<Id, const Entry*> byId;
    std::vector<Id> ids;
    for (const Entry& entry : entries) {
        ids.push_back(entry.id);
        byId.emplace(entry.id, &entry);
    }
    store.readings(ids, [&](Id id, std::string_view bytes) {
        sparks[id] = sparkOf(loadOf(*byId.at(id), bytes, tools), std::size_t(RecordingTable::pictureWidth));
    });
    return sparks;
}

} // namespace

void ArchiveForm::refresh() {
    search();
    sum();
    if (tabs_->currentIndex() != recordingsTab)
        askTab();
}

// The list is behind the other tabs, too: what is chosen in it is what growth is shown of.
void ArchiveForm::askTab() {
    if (sender() == search_)
        search();
    if (tabs_->currentIndex() == calendarTab)
        askCalendar();
    else if (tabs_->currentIndex() == growthTab)
        askGrowth();
    else
        askPictures();
}

void ArchiveForm::search() {
    auto selection = selectionOf(search_->fields());
    if (!selection) {
        state_->setText(lines(selection.error().message()).replace(QLatin1Char('\n'), QLatin1String(". ")));
        return;
    }
    selection->maximum = shownRows + 1;
    reader_.ask("search", [this, wanted = *std::move(selection)](ArchiveStore& store) {
        auto entries = std::make_shared<std::vector<Entry>>(store.find(wanted));
        return [this, entries] { found(std::move(*entries)); };
    });
}

void ArchiveForm::found(std::vector<Entry> entries) {
    notices_->remove(QStringLiteral("problem"));
    const bool more = entries.size() > shownRows;
    if (more)
        entries.resize(shownRows);
    const std::size_t count = entries.size();
    table_->recordings().show(std::move(entries));
    selectionIs(0);
    const SearchFields fields = search_->fields();
    const bool narrowed = !(fields.words + fields.from + fields.to).empty() || fields.unit;
    state_->setText(
        more ? QStringLiteral("More than %1 recordings; the first %1 are shown. Narrow the search.")
                   .arg(shownRows)
        : count > 0 ? QStringLiteral("%1 recording(s)").arg(count)
        : narrowed  ? QStringLiteral("No recording is found")
                    : QStringLiteral("The archive is empty. Add files, or a folder of recordings."));
    askPictures();
}

void ArchiveForm::sum() {
    worker_.ask("sum", [this](ArchiveStore& store) {
        return [this, stats = store.stats()] { sum_->setText(sumText(stats)); };
    });
}

void ArchiveForm::askPictures() {
    std::vector<Entry> entries = table_->withoutPicture();
    if (entries.empty())
        return;
    worker_.ask("pictures", [this, entries = std::move(entries)](ArchiveStore& store) {
        auto sparks = std::make_shared<std::unordered_map<Id, Spark>>(
            sparksOf(store, services_.archives.tools(), entries));
        return [this, sparks] { table_->recordings().setSparks(std::move(*sparks)); };
    });
}

void ArchiveForm::askCalendar() {
    const auto selection = selectionOf(search_->fields());
    if (!selection)
        return;
    worker_.ask("calendar", [this, wanted = *selection](ArchiveStore& store) {
        return [this, years = calendarOf(coverageOf(store, wanted))] { calendar_->show(years); };
    });
}

void ArchiveForm::askGrowth() {
    const std::vector<Entry> chosen = table_->selected();
    if (chosen.empty())
        return;
    worker_.ask("growth", [this, entry = chosen.front()](ArchiveStore& store) {
        return [this, growth = circuitGrowthOf(store, services_.archives.tools(), entry)] {
            if (growth)
                growth_->show(*growth);
            else
                growth_->say(lines(growth.error().message()));
        };
    });
}

void ArchiveForm::selectionIs(int count) {
    for (QPushButton* button : needSelection_)
        button->setEnabled(count > 0);
    if (tabs_->currentIndex() == growthTab)
        askGrowth();
}

void ArchiveForm::usePlace() {
    const Place place = services_.choice.place();
    place_->setText(words(place.text()));
    sum_->clear();
    table_->recordings().show({});
    calendar_->show({});
    reader_.use(place);
    worker_.use(place);
    state_->setText(QStringLiteral("Opening the archive..."));
}

void ArchiveForm::problem(const QString& text, bool nothingThere) {
    std::vector<NoticeAction> actions;
    if (nothingThere)
        actions.push_back({QStringLiteral("Make an Archive Here"), [this] { makeArchive(); }});
    else
        actions.push_back({QStringLiteral("Try Again"), [this] {
                               state_->setText(QStringLiteral("Opening the archive..."));
                               refresh();
                           }});
    actions.push_back({QStringLiteral("Other Place..."), [this] { choosePlace(); }});
    notices_->put(QStringLiteral("problem"), text, actions, false);
    state_->setText(QStringLiteral("The archive cannot be used now."));
}

void ArchiveForm::makeArchive() {
    notices_->remove(QStringLiteral("problem"));
    reader_.makeFirst();
    search();
    // Behind the first answer there is an archive to count.
    reader_.order([this](ArchiveStore&) { return [this] { sum(); }; });
}

} // namespace tally::archive
