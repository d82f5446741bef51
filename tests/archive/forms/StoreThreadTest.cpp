// SPDX-License-Identifier: GPL-3.0-or-later
#include "FormDesk.h"

#include "archive/forms/StoreThread.h"

#include <QElapsedTimer>
#include <future>
#include <thread>

namespace tally {
namespace {

using archive::ArchiveStore;
using testing::FormDesk;

struct StoreThread : FormDesk {
    StoreThread() { keep({}); }
    archive::StoreThread thread{archives};
    std::vector<int> answers;

    archive::StoreThread::Question answer(int number) {
        return [this, number](ArchiveStore&) { return [this, number] { answers.push_back(number); }; };
    }
};

TEST_F(StoreThread, DropsWhatIsNoLongerTheNewestOfItsTopic) {
    thread.use(archives.place);
    std::promise<void> begun;
    std::promise<void> go;
    thread.ask("search", [&](ArchiveStore&) {
        begun.set_value();
        go.get_future().wait();
        return [this] { answers.push_back(1); };
    });
    begun.get_future().wait();
    thread.ask("search", answer(2)); // waits, and is replaced
    thread.ask("sum", answer(3));
    thread.ask("search", answer(4));
    go.set_value();
    EXPECT_TRUE(comes([this] { return answers.size() >= 2; }));
    QTest::qWait(50);
    EXPECT_EQ(answers, (std::vector{3, 4}));
}

TEST_F(StoreThread, CarriesEveryOrderOut) {
    thread.use(archives.place);
    for (int number = 1; number <= 3; ++number)
        thread.order(answer(number));
    EXPECT_TRUE(comes([this] { return answers.size() == 3; }));
}

TEST_F(StoreThread, ForgetsTheArchiveThatIsLeft) {
    thread.use(archives.place);
    thread.order(answer(1));
    EXPECT_TRUE(comes([this] { return answers.size() == 1; }));
    thread.order(answer(2));
    thread.use(archives.place); // what was asked of the last one does not come
    thread.order(answer(3));
    EXPECT_TRUE(comes([this] { return answers.size() == 2; }));
    QTest::qWait(50);
    EXPECT_EQ(answers, (std::vector{1, 3}));
}

TEST_F(StoreThread, CarriesOrdersOutInTheArchiveThatIsLeft) {
    const archive::Place other = archive::parsePlace(folder.path("other.sqlite")).value();
    ASSERT_TRUE(initArchive(other));
    (*openArchive(other, archives.tools()))->add({testing::keptOf({})});
    std::vector<std::int64_t> recordings; // in the archive of each order
    std::promise<void> go;
    thread.use(archives.place);
    thread.order([&](ArchiveStore&) {
        go.get_future().wait();
        return archive::StoreThread::Answer();
    });
    const auto count = [&](ArchiveStore& store) {
        recordings.push_back(store.stats().recordings);
        return archive::StoreThread::Answer();
    };
    thread.order(count);
    thread.use(other);
    thread.order(count);
    thread.order(answer(1));
    go.set_value();
    EXPECT_TRUE(comes([this] { return answers.size() == 1; }));
    EXPECT_EQ(recordings, (std::vector<std::int64_t>{0, 1}));
}

TEST_F(StoreThread, EndsWhenEveryOrderIsCarriedOut) {
    std::atomic<int> done = 0;
    std::atomic<int> asked = 0;
    {
        archive::StoreThread ending(archives);
        ending.use(archives.place);
        for (int number = 0; number < 3; ++number)
            ending.order([&](ArchiveStore&) {
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
                ++done;
                return archive::StoreThread::Answer();
            });
        ending.ask("search", [&](ArchiveStore&) {
            ++asked;
            return archive::StoreThread::Answer();
        });
    }
    EXPECT_EQ(done, 3);
    EXPECT_EQ(asked, 0);
}

TEST_F(StoreThread, OpensAgainAfterAFault) {
    thread.use(archives.place);
    QSignalSpy failed(&thread, &archive::StoreThread::failed);
    thread.order([](ArchiveStore&) -> archive::StoreThread::Answer {
        throw archive::StoreFault(archive::StoreTrouble::lost, "gone");
    });
    thread.order(answer(1));
    EXPECT_TRUE(comes([this] { return answers.size() == 1; }));
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toString(), QStringLiteral("gone"));
    EXPECT_FALSE(failed.at(0).at(1).toBool());
}

} // namespace
} // namespace tally
