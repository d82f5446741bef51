// SPDX-License-Identifier: GPL-3.0-or-later
// What the archive's window does with recordings.
#include "app/forms/NoticeBar.h"
#include "archive/forms/AddBar.h"
#include "archive/forms/Adder.h"
#include "archive/forms/ArchiveForm.h"
#include "archive/forms/AssignForm.h"
#include "archive/forms/RecordingTable.h"
#include "core/forms/Words.h"

#include <QLabel>

namespace tally::archive {

namespace {

constexpr std::size_t maximumOpen = 3;

QString writtenText(const Written& written, const std::string& folder) {
    QString text = QStringLiteral("%1 recording(s) written into %2").arg(written.files).arg(words(folder));
    for (const std::string& problem : written.problems)
        text += QLatin1Char('\n') + words(problem);
    return text;
}

} // namespace

void ArchiveForm::tell(const QString& text) {
    notices_->put(QStringLiteral("told"), text);
}

void ArchiveForm::choosePlace() {
    const std::string now = services_.choice.place().text();
    const auto typed = services_.prompt.input(
        {.text = "Where the archive stands: a file, or\r\npostgresql://USER@HOST:PORT/NAME "
                 "(the password comes from the password file)",
         .preset = now,
         .choices = {now, services_.archives.usual().text()},
         .title = "Place of the Archive"});
    if (!typed)
        return;
    const auto place = parsePlace(*typed);
    if (!place) {
        services_.prompt.tell(place.error().message());
        return;
    }
    services_.choice.choose(*place);
    notices_->remove(QStringLiteral("problem"));
    notices_->remove(QStringLiteral("told"));
    usePlace();
    refresh();
}

void ArchiveForm::fetch(bool study) {
    const std::vector<Entry> chosen = table_->selected();
    if (chosen.empty())
        return;
    if (chosen.size() > maximumOpen) {
        tell(QStringLiteral("Three recordings can be open at a time; %1 are chosen.").arg(chosen.size()));
        return;
    }
    worker_.order([this, chosen, study](ArchiveStore& store) {
        auto fetched = std::make_shared<Expected<std::vector<Fetched>>>(
            fetchAll(store, services_.archives.tools(), chosen));
        return [this, fetched, study] {
            if (*fetched)
                services_.open(**fetched, study);
            else
                tell(lines(fetched->error().message()));
        };
    });
}

void ArchiveForm::exportSelected() {
    const std::vector<Entry> chosen = table_->selected();
    const auto folder = services_.chooseFolder("Folder for the Data Files");
    if (!folder)
        return;
    worker_.order([this, chosen, folder = *folder](ArchiveStore& store) {
        const Written written = writeInto(store, services_.archives.tools(), services_.files, chosen, folder);
        return [this, text = writtenText(written, folder)] { tell(text); };
    });
}

void ArchiveForm::printList() {
    const std::vector<Entry> chosen = table_->selected();
    services_.print(printedList(chosen.empty() ? table_->recordings().entries() : chosen));
}

void ArchiveForm::assign() {
    const std::vector<Entry> chosen = table_->selected();
    AssignForm form(chosen, this);
    if (form.exec() != QDialog::Accepted)
        return;
    worker_.order([this, chosen, station = form.station(), circuit = form.circuit()](ArchiveStore& store) {
        std::size_t gone = 0;
        for (const Entry& entry : chosen)
            gone += store.assign(entry.id, station, circuit) ? 0 : 1;
        return [this, gone] {
            if (gone > 0)
                tell(QStringLiteral("%1 recording(s) are no longer in the archive.").arg(gone));
            refresh();
        };
    });
}

void ArchiveForm::addFiles() {
    add(services_.chooseFiles("Add Data Files"));
}

void ArchiveForm::addFolder() {
    if (const auto folder = services_.chooseFolder("Add a Folder"))
        add({*folder});
}

void ArchiveForm::add(std::vector<std::string> paths) {
    if (paths.empty())
        return;
    notices_->remove(QStringLiteral("told"));
    services_.adder.add(services_.choice.place(), std::move(paths));
    adding_->begin();
}

void ArchiveForm::added(const AddOutcome& outcome, bool quiet) {
    if (!quiet)
        tell(words(outcomeText(outcome)));
    if (isVisible())
        refresh();
}

} // namespace tally::archive
