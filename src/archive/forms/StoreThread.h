// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Archives.h"

#include <QObject>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace tally::archive {

// Asks an archive on a thread and a connection of its own, so that the window never waits for it. A question
// takes the place of one of the same topic that still waits, and an answer that is no longer the newest of
// its topic is dropped.
class StoreThread : public QObject {
    Q_OBJECT

public:
    // What is done with an answer, on the window's thread.
    using Answer = std::function<void()>;
    // Runs on the other thread.
    using Question = std::function<Answer(ArchiveStore&)>;

    explicit StoreThread(const Archives& archives, QObject* parent = nullptr);
    // Waits for the question in hand, and until every order is carried out.
    ~StoreThread() override;

    // Asks another archive from now on; questions to the last one are dropped, and so are all its answers.
    void use(const Place& place);
    // Makes an archive at the place before the next question, where there is none.
    void makeFirst();
    void ask(const std::string& topic, Question question);
    // An order is never dropped; the archive that it was given for carries it out.
    void order(Question question) { ask({}, std::move(question)); }

Q_SIGNALS:
    // A question could not be answered. `nothingThere`: an archive could be made at the place.
    void failed(const QString& text, bool nothingThere);

private:
    struct Task {
        std::string topic;
        std::uint64_t number = 0;
        Question question;
        std::optional<Place> place; // nothing until the first place is known
    };

    void work();
    void dropQuestions();
    void run(const Task& task, std::unique_ptr<ArchiveStore>& store, const Place& place, bool make);
    Opened open(const Place& place, bool make) const;
    void deliver(const Task& task, std::function<void()> what);

    const Archives& archives_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<Task> tasks_;
    std::optional<Place> place_;
    bool changed_ = false; // the open store is not the one to ask
    bool make_ = false;
    bool over_ = false;

    // Of the window's thread.
    std::map<std::string, std::uint64_t> newest_;
    std::uint64_t asked_ = 0;
    std::uint64_t oldest_ = 0; // answers to what was asked before are of another archive

    std::thread thread_;
};

} // namespace tally::archive
