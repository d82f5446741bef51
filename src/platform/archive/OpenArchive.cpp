// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/OpenArchive.h"

#include "platform/Folders.h"
#include "platform/archive/ArchiveFile.h"
#include "platform/archive/Partitions.h"
#include "platform/archive/SqlArchive.h"

#include <utility>

namespace tally {

using archive::ArchiveStore;
using archive::Engine;
using archive::Place;
using archive::StoreFault;

namespace {

constexpr const char* noArchive = "There is no archive";
constexpr const char* initAdvice = "Make it with: tallyline-cli archive init";
constexpr const char* otherProgram = "This is no archive but a file or database of another program";
constexpr const char* newerVersion = "The archive was made by a newer version of this program";
constexpr const char* newerAdvice = "Use that version, or a newer one.";

tl::unexpected<archive::ArchiveRefusal> noArchiveAt(const Place& place) {
    return tl::make_unexpected(archive::ArchiveRefusal({noArchive, place.text(), initAdvice}, true));
}

tl::expected<std::unique_ptr<Connection>, archive::ArchiveRefusal> connect(const Place& place) {
    if (place.engine == Engine::postgresql)
        return std::make_unique<Connection>(place, Connection::Mode::write);
    switch (lookAtFile(place.path)) {
    case FileFound::nothing:
    case FileFound::empty:
        return noArchiveAt(place);
    case FileFound::foreign:
        return refuse(otherProgram, place.text());
    case FileFound::unreadable:
        return refuse("The archive cannot be read", place.text());
    case FileFound::database:
        break;
    }
    return std::make_unique<Connection>(place, modeFor(place.path));
}

archive::Opened openFound(std::unique_ptr<Connection> connection, const archive::ArchiveTools& tools,
                          const Tell& tell, const Schema& schema) {
    const std::string place = connection->place().text();
    const FoundArchive found = lookAt(*connection);
    if (found.found == Found::nothing)
        return noArchiveAt(connection->place());
    if (found.found == Found::foreign)
        return refuse(otherProgram, place);
    if (found.version > schema.version)
        return refuse(newerVersion, place, newerAdvice);
    if (found.version < schema.version) {
        if (!connection->writable())
            return refuse("The archive is of an older version and read-only", place);
        const std::string backup = moveUp(*connection, schema, found.version);
        if (tell)
            tell("The archive was brought to version " + std::to_string(schema.version) +
                 "; as it was before: " + backup);
    }
    if (connection->engine() == Engine::sqlite && connection->writable())
        prepareFile(*connection);
    return std::make_unique<SqlArchive>(std::move(connection), tools);
}

} // namespace

archive::Opened openArchive(const Place& place, const archive::ArchiveTools& tools, const Tell& tell,
                            const Schema& schema) {
    try {
        auto connection = connect(place);
        if (!connection)
            return tl::make_unexpected(connection.error());
        return openFound(*std::move(connection), tools, tell, schema);
    } catch (const StoreFault& fault) {
        return refuse(fault.what());
    }
}

Expected<void> initArchive(const Place& place, const std::vector<Place>& partitions, const Schema& schema) {
    try {
        if (place.engine == Engine::postgresql) {
            Connection connection(place, Connection::Mode::write);
            if (lookAt(connection).found == Found::archive)
                return {};
            if (partitions.empty())
                createArchive(connection, schema, tableStatements(Engine::postgresql, Keys::own));
            else
                createSplitArchive(connection, schema, partitions);
            return {};
        }
        const FileFound found = lookAtFile(place.path);
        if (found == FileFound::foreign)
            return refuse(otherProgram, place.text());
        if (found == FileFound::unreadable)
            return refuse("The archive cannot be read", place.text());
        const NewFile file(place.path);
        Connection connection(place,
                              found == FileFound::database ? modeFor(place.path) : Connection::Mode::write);
        createArchive(connection, schema, tableStatements(Engine::sqlite, Keys::own));
        file.keep();
        return {};
    } catch (const StoreFault& fault) {
        return refuse(fault.what());
    }
}

Place defaultPlace() {
    Place place;
    place.path = folders::data() + "/archive.sqlite";
    return place;
}

} // namespace tally
