// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/StoreThread.h"

#include "archive/StoreFault.h"
#include "core/forms/Words.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace tally::archive {

StoreThread::StoreThread(const Archives& archives, QObject* parent) : QObject(parent), archives_(archives) {
    thread_ = std::thread([this] { work(); });
}

StoreThread::~StoreThread() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
        dropQuestions();
    }
    wake_.notify_one();
    thread_.join();
}

void StoreThread::use(const Place& place) {
    const std::lock_guard lock(mutex_);
    place_ = place;
    changed_ = true;
    dropQuestions();
    for (Task& order : tasks_)
        if (!order.place)
            order.place = place;
    oldest_ = asked_;
}

void StoreThread::dropQuestions() {
    std::erase_if(tasks_, [](const Task& task) { return !task.topic.empty(); });
}

void StoreThread::makeFirst() {
    const std::lock_guard lock(mutex_);
    make_ = true;
}

void StoreThread::ask(const std::string& topic, Question question) {
    {
        const std::lock_guard lock(mutex_);
        if (!topic.empty()) {
            std::erase_if(tasks_, [&](const Task& task) { return task.topic == topic; });
            newest_[topic] = asked_ + 1;
        }
        tasks_.push_back({topic, ++asked_, std::move(question), place_});
    }
    wake_.notify_one();
}

void StoreThread::work() {
    std::unique_ptr<ArchiveStore> store;
    std::string opened; // where the store stands
    for (;;) {
        std::unique_lock lock(mutex_);
        wake_.wait(lock, [this] { return over_ || (place_ && !tasks_.empty()); });
        if (!place_ || tasks_.empty())
            return;
        const Task task = std::move(tasks_.front());
        tasks_.pop_front();
        const Place place = *task.place;
        // What is still to be done in an archive that was left makes none there.
        const bool make = place.text() == place_->text() && std::exchange(make_, false);
        if (std::exchange(changed_, false) || opened != place.text())
            store.reset();
        opened = place.text();
        lock.unlock();
        run(task, store, place, make);
    }
}

Opened StoreThread::open(const Place& place, bool make) const {
    if (make)
        if (const auto made = archives_.make(place); !made)
            return tl::make_unexpected(ArchiveRefusal(made.error()));
    return archives_.open(place);
}

void StoreThread::run(const Task& task, std::unique_ptr<ArchiveStore>& store, const Place& place, bool make) {
    const auto fail = [&](const std::string& why, bool nothingThere) {
        // The next question opens the archive anew: a server may be back by then.
        store.reset();
        deliver(task, [this, text = lines(why), nothingThere] { Q_EMIT failed(text, nothingThere); });
    };
    try {
        if (!store) {
            Opened opened = open(place, make);
            if (!opened) {
                const ArchiveRefusal& why = opened.error();
                // The window has a button for what the advice says.
                fail(why.nothingThere ? Refusal{why.text, why.subject}.message() : why.message(),
                     why.nothingThere);
                return;
            }
            store = *std::move(opened);
        }
        deliver(task, task.question(*store));
    } catch (const std::exception& error) {
        fail(error.what(), false);
    }
}

void StoreThread::deliver(const Task& task, std::function<void()> what) {
    QMetaObject::invokeMethod(
        this,
        [this, topic = task.topic, number = task.number, what = std::move(what)] {
            const bool newest = topic.empty() || newest_[topic] == number;
            if (number > oldest_ && newest && what)
                what();
        },
        Qt::QueuedConnection);
}

} // namespace tally::archive
