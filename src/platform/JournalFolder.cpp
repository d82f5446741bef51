// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFolder.h"

#include "core/Fault.h"
#include "link/JournalText.h"
#include "platform/Folders.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <algorithm>

namespace tally {

namespace {

constexpr int syncEvery = 1000; // milliseconds
constexpr std::uint64_t mostText = 1 << 20;
constexpr std::size_t describedBy = 65536; // characters that may stand before and in a header

const char* const rawEnding = ".raw";
const char* const logEnding = ".log";
const char* const dataEnding = ".dat";

std::uint64_t sizeOf(const std::string& path) {
    return static_cast<std::uint64_t>(QFileInfo(QString::fromStdString(path)).size());
}

} // namespace

JournalFolder::JournalFolder(std::string folder, Files& files) : folder_(std::move(folder)), files_(files) {
    syncTimer_.setInterval(syncEvery);
    syncTimer_.setSingleShot(true);
    QObject::connect(&syncTimer_, &QTimer::timeout, [this] { sync(); });
}

JournalFolder::~JournalFolder() {
    if (receiving_)
        end(JournalState::interrupted);
}

std::string JournalFolder::path(const std::string& id, const char* ending) const {
    if (id.empty() || id.find_first_not_of("0123456789-") != std::string::npos)
        throw fault::fileNotFound();
    return folder_ + "/" + id + ending;
}

// Sorts by time; the process keeps two programs apart.
std::string JournalFolder::newId() const {
    for (QDateTime time = QDateTime::currentDateTimeUtc();; time = time.addMSecs(1)) {
        const std::string id = (time.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz-")) +
                                QString::number(QCoreApplication::applicationPid()))
                                   .toStdString();
        if (!files_.exists(path(id, logEnding)))
            return id;
    }
}

void JournalFolder::fail(const std::string& why) {
    raw_.close();
    log_.close();
    id_.clear();
    problem_ = "The journal of downloads cannot be written in " + folder_ + ": " + why +
               ". A download that is not saved is lost when the program ends.";
    if (!told_ && tell_)
        tell_(problem_);
    told_ = true;
}

void JournalFolder::begin(const JournalHeader& header) {
    raw_.close();
    log_.close();
    removeOld(keep - 1);
    problem_.clear();
    id_ = newId();
    bytes_ = 0;
    receiving_ = true;
    folders::make(folder_);
    if (!log_.create(path(id_, logEnding)) || !log_.write(journalStart(header)) || !log_.sync())
        fail(log_.error());
    else if (!raw_.create(path(id_, rawEnding)))
        fail(raw_.error());
}

void JournalFolder::append(std::string_view bytes) {
    if (!receiving_ || !raw_.isOpen())
        return;
    if (!raw_.write(bytes)) {
        fail(raw_.error());
        return;
    }
    bytes_ += bytes.size();
    if (!syncTimer_.isActive())
        syncTimer_.start();
}

void JournalFolder::sync() {
    if (raw_.isOpen() && !raw_.sync())
        fail(raw_.error());
}

void JournalFolder::note(const std::string& line) {
    if (log_.isOpen() && !(log_.write(line) && log_.sync()))
        fail(log_.error());
}

void JournalFolder::restart(const std::string& settings) {
    if (receiving_)
        note(journalPart(bytes_, settings));
}

void JournalFolder::clockDifference(std::int64_t minutes) {
    note(journalClock(minutes));
}

void JournalFolder::end(JournalState state) {
    if (receiving_) {
        receiving_ = false;
        syncTimer_.stop();
        sync();
        raw_.close();
    }
    note(journalState(state));
    if (state != JournalState::received)
        log_.close();
    if (bytes_ == 0)
        removeOld(keep);
}

void JournalFolder::accepted(std::string_view text) {
    if (!log_.isOpen())
        return;
    try {
        files_.write(path(id_, dataEnding), std::string(text));
    } catch (const Fault& fault) {
        fail(fault.what());
        return;
    }
    end(JournalState::accepted);
}

std::vector<std::string> JournalFolder::ids() const {
    std::vector<std::string> all;
    const QDir dir(QString::fromStdString(folder_));
    for (const QString& name : dir.entryList({QStringLiteral("*.log")}, QDir::Files, QDir::NoSort)) {
        const std::string id = name.chopped(4).toStdString();
        if (!id.empty() && id.find_first_not_of("0123456789-") == std::string::npos)
            all.push_back(id);
    }
    std::sort(all.rbegin(), all.rend());
    return all;
}

// Nothing when no character came and nobody waits for one.
std::optional<JournalEntry> JournalFolder::entry(const std::string& id) const {
    const JournalRecord record = readJournal(files_.read(path(id, logEnding), mostText));
    const std::string raw = path(id, rawEnding);
    const std::uint64_t bytes = sizeOf(raw);
    const bool held = isHeld(path(id, logEnding));
    if (bytes == 0 && !held)
        return {};
    JournalEntry found{.id = id, .header = record.header, .clockDifference = record.clockDifference};
    found.state = record.state.value_or(held ? JournalState::receiving : JournalState::interrupted);
    found.bytes = bytes - std::min(bytes, record.partStart);
    if (bytes > 0) {
        const std::string start = files_.read(raw, record.partStart + describedBy);
        describe(found,
                 std::string_view(start).substr(std::min<std::size_t>(start.size(), record.partStart)));
    }
    return found;
}

std::vector<JournalEntry> JournalFolder::list() const {
    std::vector<JournalEntry> entries;
    for (const std::string& id : ids()) {
        try {
            if (auto found = entry(id))
                entries.push_back(std::move(*found));
        } catch (const Fault&) {
            // Another program has just removed it.
        }
    }
    return entries;
}

std::string JournalFolder::text(const std::string& id) const {
    const std::string data = path(id, dataEnding);
    if (files_.exists(data))
        return files_.read(data, mostText);
    const JournalRecord record = readJournal(files_.read(path(id, logEnding), mostText));
    std::string raw = files_.read(path(id, rawEnding), record.partStart + mostText);
    return raw.erase(0, record.partStart);
}

void JournalFolder::mark(const std::string& id, JournalState state) {
    JournalFile log;
    if (!log.open(path(id, logEnding)))
        throw files_.exists(path(id, logEnding)) ? fault::pathFileAccess() : fault::fileNotFound();
    if (!log.write(journalState(state)) || !log.sync())
        throw fault::deviceIo();
}

void JournalFolder::accept(const std::string& id, std::string_view text) {
    files_.write(path(id, dataEnding), std::string(text));
    mark(id, JournalState::accepted);
}

// Keeps the last ones, every unsaved one and those that are being written.
void JournalFolder::removeOld(std::size_t most) {
    std::size_t kept = 0;
    for (const std::string& id : ids()) {
        std::optional<JournalEntry> found;
        try {
            found = entry(id);
        } catch (const Fault&) {
            continue;
        }
        const bool wanted =
            found && (kept < most || isUnsaved(found->state) || found->state == JournalState::receiving);
        kept += found ? 1 : 0;
        // The log goes last: without it the others would never be found again.
        if (!wanted)
            for (const char* ending : {rawEnding, dataEnding, logEnding})
                QFile::remove(QString::fromStdString(path(id, ending)));
    }
}

} // namespace tally
