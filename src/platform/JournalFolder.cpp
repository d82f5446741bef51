// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFolder.h"

#include "core/Fault.h"
#include "link/JournalText.h"
#include "platform/Folders.h"
#include "platform/Patiently.h"
#include "platform/ReplaceFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <algorithm>
#include <filesystem>

namespace tally {

namespace {

constexpr int syncEvery = 1000; // milliseconds
constexpr std::uint64_t maximumText = 1 << 20;
constexpr std::size_t describedBy = 65536; // characters that may stand before and in a header

const char* const rawEnding = ".raw";
const char* const logEnding = ".log";
const char* const dataEnding = ".dat";

std::uint64_t sizeOf(const std::string& path) {
    std::error_code ignored;
    const auto size = std::filesystem::file_size(path, ignored);
    return ignored ? 0 : size;
}

bool isId(const std::string& name) {
    return !name.empty() && name.find_first_not_of("0123456789-") == std::string::npos;
}

} // namespace

JournalFolder::JournalFolder(std::string folder, Files& files) : folder_(std::move(folder)), files_(files) {
    syncTimer_.setInterval(syncEvery);
    syncTimer_.setSingleShot(true);
    QObject::connect(&syncTimer_, &QTimer::timeout, [this] {
        if (raw_.isOpen())
            bring(raw_.file());
    });
}

JournalFolder::~JournalFolder() {
    if (receiving_)
        end(JournalState::interrupted);
    settle();
}

std::string JournalFolder::path(const std::string& id, const char* ending) const {
    if (!isId(id))
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

// A reception that could only be begun keeps its name: a part of it is there.
void JournalFolder::fail(const std::string& why) {
    if (raw_.size() == 0 && !log_.isOpen())
        id_.clear();
    raw_.close();
    log_.close();
    problem_ = "The journal of downloads cannot be written in " + folder_ + ": " + why +
               ". A download that is not saved is lost when the program ends.";
    if (!told_ && tell_)
        tell_(problem_);
    told_ = true;
}

// From the thread of the disk.
void JournalFolder::report(const std::string& why) {
    {
        const std::lock_guard lock(mutex_);
        report_ = why;
    }
    QMetaObject::invokeMethod(
        &syncTimer_, [this] { takeReport(); }, Qt::QueuedConnection);
}

void JournalFolder::takeReport() {
    std::string why;
    {
        const std::lock_guard lock(mutex_);
        why.swap(report_);
    }
    if (!why.empty())
        fail(why);
}

void JournalFolder::settle() {
    disk_.finish();
    takeReport();
}

void JournalFolder::bring(JournalFile file) {
    disk_.give([this, file]() mutable {
        if (!file.sync())
            report(file.error());
    });
}

// Another program may take the same name, or a log that is not locked yet for an old one.
bool JournalFolder::create() {
    do {
        id_ = newId();
        if (log_.create(path(id_, logEnding)))
            return true;
    } while (log_.wasThere());
    return false;
}

void JournalFolder::begin(const JournalHeader& header) {
    raw_.close();
    log_.close();
    takeReport();
    problem_.clear();
    told_ = false;
    receiving_ = true;
    folders::make(folder_);
    if (!create() || !log_.write(journalStart(header)))
        fail(log_.error());
    else if (!raw_.create(path(id_, rawEnding)))
        fail(raw_.error());
    if (!log_.isOpen())
        return;
    bring(log_);
    disk_.give([this] {
        if (!syncFolder(folder_))
            report("the folder cannot be brought to the disk");
        removeOld(keep);
    });
}

std::span<char> JournalFolder::room() {
    return receiving_ ? raw_.room() : std::span<char>();
}

void JournalFolder::append(std::string_view bytes) {
    if (!receiving_ || !raw_.isOpen() || bytes.empty())
        return;
    if (!raw_.append(bytes)) {
        fail(raw_.error());
        return;
    }
    if (!syncTimer_.isActive())
        syncTimer_.start();
}

void JournalFolder::note(const std::string& line) {
    if (!log_.isOpen())
        return;
    if (log_.write(line))
        bring(log_);
    else
        fail(log_.error());
}

void JournalFolder::restart(const std::string& settings) {
    if (receiving_)
        note(journalPart(raw_.size(), settings));
}

void JournalFolder::clockDifference(std::int64_t minutes) {
    note(journalClock(minutes));
}

void JournalFolder::end(JournalState state) {
    if (receiving_) {
        receiving_ = false;
        syncTimer_.stop();
        const JournalFile raw = raw_.file();
        raw_.close();
        if (raw.isOpen())
            bring(raw);
    }
    note(journalState(state));
    if (state != JournalState::received)
        log_.close();
    if (raw_.size() == 0)
        disk_.give([this] { removeOld(keep); });
}

void JournalFolder::accepted(std::string_view text) {
    if (!log_.isOpen())
        return;
    bringAccepted(id_, text, log_);
    log_.close();
}

// The state is noted when the text is on the disk; until then the journal answers from memory.
void JournalFolder::bringAccepted(const std::string& id, std::string_view text, JournalFile log) {
    {
        const std::lock_guard lock(mutex_);
        accepting_[id] = text;
    }
    disk_.give([this, id, log = std::move(log), kept = std::string(text)]() mutable {
        std::string why;
        try {
            replaceFile(path(id, dataEnding), kept, Access::owner);
            if (!log.write(journalState(JournalState::accepted)) || !log.sync())
                why = log.error();
        } catch (const Fault& fault) {
            why = fault.what();
        }
        {
            const std::lock_guard lock(mutex_);
            accepting_.erase(id);
        }
        if (!why.empty())
            report(why);
    });
}

std::optional<std::string> JournalFolder::accepting(const std::string& id) const {
    const std::lock_guard lock(mutex_);
    const auto found = accepting_.find(id);
    return found == accepting_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string> JournalFolder::ids() const {
    std::vector<std::string> all;
    std::error_code ignored;
    for (std::filesystem::directory_iterator file(folder_, ignored), end; file != end;
         file.increment(ignored))
        if (file->path().extension() == logEnding && isId(file->path().stem().string()))
            all.push_back(file->path().stem().string());
    std::sort(all.rbegin(), all.rend());
    return all;
}

// What was received, without the filling of a file that a killed program left.
std::string JournalFolder::characters(const std::string& id, std::uint64_t maximum) const {
    return std::string(withoutFilling(files_.read(path(id, rawEnding), maximum)));
}

std::uint64_t JournalFolder::countOf(const std::string& id) const {
    const std::uint64_t size = sizeOf(path(id, rawEnding));
    return size == 0 || size % FileMap::step != 0 ? size : characters(id, size).size();
}

// Nothing when no character came and nobody waits for one.
std::optional<JournalEntry> JournalFolder::entry(const std::string& id) const {
    const JournalRecord record = readJournal(files_.read(path(id, logEnding), maximumText));
    const std::uint64_t bytes = countOf(id);
    const bool held = isHeld(path(id, logEnding));
    if (bytes == 0 && !held)
        return {};
    JournalEntry found{.id = id, .header = record.header, .clockDifference = record.clockDifference};
    found.hasAccepted = files_.exists(path(id, dataEnding));
    found.state = record.state.value_or(held ? JournalState::receiving : JournalState::interrupted);
    if (accepting(id) && !isFinal(found.state))
        found.state = JournalState::accepted;
    found.bytes = bytes - std::min(bytes, record.partStart);
    if (bytes > 0) {
        const std::string start = characters(id, record.partStart + describedBy);
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
    if (const auto onItsWay = accepting(id))
        return *onItsWay;
    const std::string data = path(id, dataEnding);
    if (files_.exists(data))
        return files_.read(data, maximumText);
    return received(id);
}

std::string JournalFolder::received(const std::string& id) const {
    const JournalRecord record = readJournal(files_.read(path(id, logEnding), maximumText));
    return characters(id, record.partStart + maximumText).erase(0, record.partStart);
}

JournalFile JournalFolder::logOf(const std::string& id) const {
    JournalFile log;
    if (!log.open(path(id, logEnding)))
        throw files_.exists(path(id, logEnding)) ? fault::pathFileAccess() : fault::fileNotFound();
    return log;
}

void JournalFolder::mark(const std::string& id, JournalState state) {
    JournalFile log = logOf(id);
    if (!log.write(journalState(state)))
        throw log.isFull() ? fault::diskFull() : fault::deviceIo();
    bring(log);
}

void JournalFolder::accept(const std::string& id, std::string_view text) {
    bringAccepted(id, text, logOf(id));
}

bool JournalFolder::keeps(const std::string& id) {
    patiently([this] { disk_.finish(); });
    takeReport();
    try {
        const auto found = id.empty() ? std::nullopt : entry(id);
        return found && found->state == JournalState::accepted && files_.exists(path(id, dataEnding));
    } catch (const Fault&) {
        return false;
    }
}

// Keeps the last ones, every unsaved one and those that are being written.
void JournalFolder::removeOld(std::size_t maximum) const {
    std::size_t kept = 0;
    for (const std::string& id : ids()) {
        std::optional<JournalEntry> found;
        try {
            found = entry(id);
        } catch (const Fault&) {
            continue;
        }
        const bool wanted =
            found && (kept < maximum || isUnsaved(found->state) || found->state == JournalState::receiving);
        kept += found ? 1 : 0;
        if (!wanted)
            whileHeld(path(id, logEnding), [&] { remove(id); });
    }
}

// The log goes last: without it the others would never be found again.
void JournalFolder::remove(const std::string& id) const {
    std::error_code ignored;
    for (const char* ending : {rawEnding, dataEnding, logEnding})
        std::filesystem::remove(path(id, ending), ignored);
}

} // namespace tally
