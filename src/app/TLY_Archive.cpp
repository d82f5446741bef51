// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Archive.h"

#include "app/Printing.h"
#include "app/TLY_File.h"
#include "app/TLY_Study.h"
#include "app/forms/NoticeBar.h"
#include "archive/forms/ArchiveForm.h"
#include "core/forms/Words.h"

#include <algorithm>

namespace tally {

namespace {

const QString automaticKey = QStringLiteral("archive automatic");
const QString addedKey = QStringLiteral("archive added");

} // namespace

TLY_Archive::TLY_Archive(const Services& services, ArchiveParts parts)
    : services_(services), parts_(parts), copies_(services.files) {
    if (!services.archive)
        return;
    choice_.emplace(services.settings, services.archive->archives.usual());
    adder_ = std::make_unique<archive::Adder>(services.archive->archives, services.archive->files);
    QObject::connect(adder_.get(), &archive::Adder::ended, adder_.get(),
                     [this](const archive::AddOutcome& outcome, bool quiet) { added(outcome, quiet); });
}

TLY_Archive::~TLY_Archive() = default;

archive::ArchiveForm& TLY_Archive::form() {
    if (form_)
        return *form_;
    const ArchiveServices& archive = *services_.archive;
    form_ = std::make_unique<archive::ArchiveForm>(archive::FormServices{
        archive.archives, *choice_, *adder_, archive.files, services_.prompt, archive.chooseFolder,
        archive.chooseFiles,
        [this](const std::vector<archive::Fetched>& recordings, bool study) { open(recordings, study); },
        [this](const archive::PrintedList& list) {
            parts_.dispatcher.run(
                [&] { parts_.printing.print("Recordings in the archive", list.heading, list.text); });
        }});
    return *form_;
}

void TLY_Archive::mnuItemArchive_Click() {
    if (services_.archive)
        form().open();
}

void TLY_Archive::open(const std::vector<archive::Fetched>& recordings, bool study) {
    if (parts_.dispatcher.running()) {
        services_.prompt.tell("Another command is running; end it first.");
        return;
    }
    parts_.window.raise();
    parts_.window.activateWindow();
    parts_.dispatcher.run([&] { return openCopies(recordings, study); });
}

Done TLY_Archive::openCopies(const std::vector<archive::Fetched>& recordings, bool study) {
    std::size_t free = 0;
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        free += services_.recordings.isOpen(slot) ? 0 : 1;
    if (recordings.size() > free)
        return refuse("There is room for " + std::to_string(free) + " more recording(s)", {},
                      "Close the open files first.");
    std::vector<std::string> paths;
    for (const archive::Fetched& recording : recordings)
        paths.push_back(copies_.put(recording));
    parts_.file.openAll(paths, TLY_File::Remember::no);
    return study && services_.recordings.isOpen(0) ? parts_.study.mnuItemViewStudy_Click() : Done();
}

bool TLY_Archive::anyArchive() const {
    const archive::Place place = choice_->place();
    return place.engine == archive::Engine::postgresql || services_.archive->files.exists(place.path);
}

void TLY_Archive::saved(const std::string& path) {
    using Automatic = archive::ArchiveChoice::Automatic;
    if (!choice_ || !anyArchive())
        return;
    if (choice_->automatic() == Automatic::on)
        adder_->add(choice_->place(), {path}, true);
    if (choice_->automatic() != Automatic::notAsked)
        return;
    // Whoever does not answer is not asked again; the archive's window has the setting.
    setAutomatic(false);
    parts_.notices.put(
        automaticKey,
        QStringLiteral("Put downloads and saved recordings into the archive by themselves from "
                       "now on? The archive's window can change that."),
        {{QStringLiteral("Yes"),
          [this, path] {
              parts_.notices.remove(automaticKey);
              setAutomatic(true);
              adder_->add(choice_->place(), {path}, true);
          }},
         {QStringLiteral("No"), [this] { parts_.notices.remove(automaticKey); }}});
}

void TLY_Archive::setAutomatic(bool on) {
    choice_->setAutomatic(on);
    if (form_)
        form_->showAutomatic();
}

// What went in by itself is only told of when it did not.
void TLY_Archive::added(const archive::AddOutcome& outcome, bool quiet) {
    if (quiet && (!outcome.fault.empty() || !outcome.progress.count.failures.empty()))
        parts_.notices.put(addedKey, QStringLiteral("Not in the archive: ") + lines(outcomeText(outcome)));
    else if (quiet)
        parts_.notices.remove(addedKey);
}

bool TLY_Archive::mayLeave() {
    return !adder_ || !adder_->running() || form().mayLeave();
}

void TLY_Archive::close() {
    if (form_)
        form_->hide();
}

} // namespace tally
