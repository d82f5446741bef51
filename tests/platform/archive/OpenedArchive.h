// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/archive/OpenArchive.h"
#include "platform/archive/Samples.h"
#include "support/Process.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tally::testing {

inline std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

// An empty archive for one test: on the server that the environment names, else in a file.
class OpenedArchive : public ::testing::Test {
protected:
    OpenedArchive() : OpenedArchive(true) {}
    explicit OpenedArchive(bool make) {
        const std::string server = environment("TALLYLINE_TEST_SERVER");
        if (server.empty())
            place = archive::parsePlace(folder.path("archive.sqlite")).value();
        else
            place = emptied(server + "/postgres");
        if (make) {
            const auto made = initArchive(place);
            EXPECT_TRUE(made) << (made ? "" : made.error().message());
            open();
        }
    }

    static archive::Place emptied(const std::string& url) {
        const archive::Place server = archive::parsePlace(url).value();
        Connection connection(server, Connection::Mode::write);
        connection.execute("DROP SCHEMA IF EXISTS tallyline CASCADE");
        for (int number = 1; number <= 3; ++number)
            connection.execute("DROP SERVER IF EXISTS tallyline_" + std::to_string(number) + " CASCADE");
        return server;
    }

    void open() {
        store.reset();
        auto opened = openArchive(place, tools());
        ASSERT_TRUE(opened) << opened.error().message();
        store = *std::move(opened);
    }

    bool onServer() const { return place.engine == archive::Engine::postgresql; }

    // Adds one recording; whether it was new.
    bool add(const Sample& sample) { return store->add({keptOf(sample)}).at(0); }
    std::vector<archive::Entry> find(const archive::Selection& selection = {}) {
        return store->find(selection);
    }
    // How many recordings have all these words.
    std::size_t having(std::vector<std::string> words) {
        archive::Selection selection;
        selection.words = std::move(words);
        return find(selection).size();
    }

    TemporaryFolder folder;
    archive::Place place;
    std::unique_ptr<archive::ArchiveStore> store;
};

} // namespace tally::testing
