// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/ServerAddress.h"

#include "archive/StoreFault.h"
#include "platform/archive/SqlErrors.h"

#include <QElapsedTimer>
#include <QSqlError>

#include <array>
#include <chrono>
#include <future>
#include <memory>
#include <netdb.h>
#include <string>
#include <thread>
#include <vector>

namespace tally {

using archive::StoreFault;
using archive::StoreTrouble;

namespace {

constexpr std::chrono::milliseconds nameLimit(1500);
constexpr qint64 wholeLimit = 4500; // ms
// The client library counts in whole seconds, and takes 2 for 1.
constexpr qint64 shortestTry = 2000; // ms

// The addresses of a host as numbers; empty when there is no such host.
std::vector<std::string> lookUp(const std::string& host) {
    addrinfo wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    std::vector<std::string> addresses;
    if (getaddrinfo(host.c_str(), nullptr, &wanted, &list) != 0)
        return addresses;
    for (const addrinfo* one = list; one != nullptr; one = one->ai_next) {
        std::array<char, NI_MAXHOST> text = {};
        if (getnameinfo(one->ai_addr, one->ai_addrlen, text.data(), text.size(), nullptr, 0,
                        NI_NUMERICHOST) == 0)
            addresses.emplace_back(text.data());
    }
    freeaddrinfo(list);
    return addresses;
}

// The name service itself may take half a minute to give up, so it is asked beside.
std::vector<std::string> addressesOf(const archive::Place& place) {
    auto answer = std::make_shared<std::promise<std::vector<std::string>>>();
    auto found = answer->get_future();
    std::thread([answer, host = place.host] { answer->set_value(lookUp(host)); }).detach();
    const std::string outOfReach = "The archive's server is out of reach (" + place.text() + "): ";
    if (found.wait_for(nameLimit) != std::future_status::ready)
        throw StoreFault(StoreTrouble::lost, outOfReach + "the name service does not answer");
    std::vector<std::string> addresses = found.get();
    if (addresses.empty())
        throw StoreFault(StoreTrouble::lost, outOfReach + "there is no such host");
    return addresses;
}

} // namespace

void openServer(QSqlDatabase& database, const archive::Place& place) {
    QElapsedTimer timer;
    timer.start();
    QSqlError error;
    for (const std::string& address : addressesOf(place)) {
        const qint64 left = wholeLimit - timer.elapsed();
        if (left < shortestTry)
            break;
        database.setConnectOptions(
            QStringLiteral("hostaddr=%1;connect_timeout=%2;tcp_user_timeout=4000;application_name=tallyline")
                .arg(QString::fromStdString(address))
                .arg(shortestTry / 1000));
        if (database.open())
            return;
        error = database.lastError();
        // Whoever answers is the server; another address would only hide what it said.
        if (!error.databaseText().contains(QLatin1String("refused")) &&
            !error.databaseText().contains(QLatin1String("timeout")))
            break;
    }
    throw storeFault(archive::Engine::postgresql, error, place.text());
}

} // namespace tally
