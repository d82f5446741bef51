// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"
#include "archive/Verify.h"
#include "platform/archive/OpenedArchive.h"

#include "archive/Day.h"

#include <arpa/inet.h>
#include <chrono>
#include <netinet/in.h>
#include <sstream>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace tally::archive {
namespace {

using tally::testing::constant;
using tally::testing::environment;
using tally::testing::keptOf;
using tally::testing::OpenedArchive;
using tally::testing::tools;

double secondsOf(const std::function<void()>& work) {
    const auto begun = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
}

std::string refusalOf(const std::string& url) {
    auto opened = openArchive(parsePlace(url).value(), tools());
    return opened ? "" : opened.error().text;
}

// A port on loopback that takes connections and never says a word.
class SilentServer {
public:
    SilentServer() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        EXPECT_EQ(bind(socket_, reinterpret_cast<sockaddr*>(&address), length), 0);
        EXPECT_EQ(listen(socket_, 5), 0);
        EXPECT_EQ(getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length), 0);
        port = ntohs(address.sin_port);
    }
    ~SilentServer() { close(socket_); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;
    int port = 0;

private:
    int socket_;
};

TEST(NoServer, IsToldWithinFiveSeconds) {
    const SilentServer silent;
    const std::string port = std::to_string(silent.port);
    for (const std::string& server : {std::string("127.0.0.1:1"), "127.0.0.1:" + port, "localhost:" + port,
                                      std::string("no-such-host.invalid:5432")}) {
        const std::string url = "postgresql://x@" + server + "/load";
        std::string why;
        EXPECT_LT(secondsOf([&] { why = refusalOf(url); }), 5.0) << url;
        EXPECT_EQ(why.find("The archive's server is out of reach"), 0U) << why;
    }
}

// What only a server can be.
class Server : public OpenedArchive {
protected:
    void SetUp() override {
        if (!onServer())
            GTEST_SKIP() << "no server here; runs as platform_archive.postgresql";
    }
    static void control(const std::string& what) {
        ASSERT_EQ(std::system((environment("TALLYLINE_TEST_SERVER_CONTROL") + " " + what).c_str()), 0);
    }
};

TEST_F(Server, SaysThatAPasswordIsWrongOrMissing) {
    const std::string url = "postgresql://locked@127.0.0.1:" + std::to_string(place.port) + "/postgres";
    unsetenv("PGPASSWORD");
    EXPECT_NE(refusalOf(url).find("password"), std::string::npos) << refusalOf(url);
    setenv("PGPASSWORD", "close sesame", 1);
    EXPECT_NE(refusalOf(url).find("refuses the password"), std::string::npos) << refusalOf(url);
    EXPECT_EQ(refusalOf(url).find("sesame"), std::string::npos);
    setenv("PGPASSWORD", "open sesame", 1);
    // Right password, but no rights in the archive.
    EXPECT_TRUE(refusalOf(url).starts_with("This user may not do that in the archive")) << refusalOf(url);
    unsetenv("PGPASSWORD");
}

TEST_F(Server, SaysThatThereIsNoDatabase) {
    const std::string why =
        refusalOf("postgresql://tally@127.0.0.1:" + std::to_string(place.port) + "/nothing_here");
    EXPECT_NE(why.find("no such database"), std::string::npos) << why;
}

TEST_F(Server, RepeatsABatchWhenTheServerComesBack) {
    add({.serial = "1"});
    control("restart");
    EXPECT_TRUE(add({.serial = "2"}));
    EXPECT_EQ(store->stats().recordings, 2);
}

TEST_F(Server, SaysThatTheServerStopped) {
    add({.serial = "1"});
    control("stop");
    EXPECT_THROW(store->stats(), StoreFault);
    control("start");
    open();
    EXPECT_EQ(store->stats().recordings, 1);
}

TEST_F(Server, TakesTheSameRecordingsFromTwoWriters) {
    std::vector<Kept> recordings;
    for (int serial = 0; serial < 60; ++serial)
        recordings.push_back(keptOf({.serial = std::to_string(serial)}));
    std::atomic<int> added = 0;
    const auto write = [&](std::vector<Kept> list) {
        const auto own = openArchive(place, tools());
        for (std::size_t at = 0; at < list.size(); at += 10)
            for (const bool isNew : (*own)->add({list.begin() + static_cast<std::ptrdiff_t>(at),
                                                 list.begin() + static_cast<std::ptrdiff_t>(at) + 10}))
                added += isNew ? 1 : 0;
    };
    std::thread other([&] { write({recordings.rbegin(), recordings.rend()}); });
    write(recordings);
    other.join();
    EXPECT_EQ(added, 60);
    EXPECT_EQ(store->stats().recordings, 60);
    EXPECT_TRUE(verifyArchive(*store, tools()).bad.empty());
}

class Partitions : public Server {
protected:
    void SetUp() override {
        Server::SetUp();
        if (IsSkipped())
            return;
        std::istringstream urls(environment("TALLYLINE_TEST_PARTITIONS"));
        for (std::string url; urls >> url;)
            partitions.push_back(emptied(url + "/postgres"));
        store.reset();
        emptied(place.text());
        const auto made = initArchive(place, partitions);
        ASSERT_TRUE(made) << made.error().message();
        open();
    }
    std::vector<Place> partitions;
};

TEST_F(Partitions, SplitTheRecordingsAndAnswerAsOne) {
    std::vector<Kept> recordings;
    for (int serial = 0; serial < 30; ++serial)
        recordings.push_back(keptOf({.start = {2020, 1, 1 + serial, 0, 0},
                                     .values = constant(96, serial),
                                     .serial = std::to_string(serial)}));
    store->add(recordings);
    EXPECT_EQ(store->add(recordings), std::vector<bool>(30, false));
    for (const Place& partition : partitions) {
        Connection connection(partition, Connection::Mode::write);
        const auto count = connection.number("SELECT count(*) FROM recording");
        EXPECT_GT(count, 0);
        EXPECT_LT(count, 30);
        EXPECT_EQ(connection.number("SELECT count(*) FROM body"), count);
    }
    EXPECT_EQ(store->stats().recordings, 30);
    EXPECT_EQ(having({"maple"}), 30U);
    EXPECT_EQ(coverageOf(*store, {}).days, 30);
    const Peaks peaks = peaksOf(*store, tools(), {}, {}, Rank::max, 0);
    ASSERT_EQ(peaks.peaks.size(), 1U);
    EXPECT_DOUBLE_EQ(peaks.peaks[0].max, 29);
    EXPECT_TRUE(verifyArchive(*store, tools()).bad.empty());
    const auto entry = find().at(3);
    EXPECT_TRUE(store->assign(entry.id, "South", "Elm"));
    EXPECT_EQ(having({"elm"}), 1U);
    EXPECT_TRUE(store->remove(entry.id));
    EXPECT_EQ(store->stats().recordings, 29);
}

TEST_F(Partitions, GiveNoPartialAnswer) {
    std::vector<Kept> recordings;
    for (int serial = 0; serial < 12; ++serial)
        recordings.push_back(keptOf({.serial = std::to_string(serial)}));
    store->add(recordings);
    control("stop 2");
    open(); // a connection that has not reached the partition yet
    EXPECT_LT(secondsOf([&] { EXPECT_THROW(store->stats(), StoreFault); }), 5.0);
    EXPECT_LT(secondsOf([&] { EXPECT_THROW(find(), StoreFault); }), 5.0);
    control("start 2");
    open();
    EXPECT_EQ(store->stats().recordings, 12);
}

} // namespace
} // namespace tally::archive
