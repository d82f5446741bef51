// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Place.h"

#include <charconv>
#include <optional>

namespace tally::archive {

namespace {

constexpr std::string_view sqliteScheme = "sqlite:";
constexpr std::string_view postgresqlScheme = "postgresql://";
constexpr std::string_view shape = "Write it as PATH, sqlite:PATH or postgresql://USER@HOST:PORT/NAME.";
constexpr int highestPort = 65535;

tl::unexpected<Refusal> noPlace(std::string why, std::string_view text) {
    return refuse(std::move(why), std::string(text), std::string(shape));
}

std::optional<int> numberOf(std::string_view text, int base = 10) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return number;
}

// "%20" is a blank; what is no such code stands for itself.
std::string decoded(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto code =
            text[at] == '%' && at + 2 < text.size() ? numberOf(text.substr(at + 1, 2), 16) : std::nullopt;
        plain += code ? static_cast<char>(*code) : text[at];
        at += code ? 2 : 0;
    }
    return plain;
}

// Takes what stands before a sign off the front; nothing when the sign is not there.
std::optional<std::string_view> takeUpTo(std::string_view& text, char sign) {
    const auto at = text.find(sign);
    if (at == std::string_view::npos)
        return std::nullopt;
    const std::string_view front = text.substr(0, at);
    text.remove_prefix(at + 1);
    return front;
}

// "HOST", "HOST:PORT", "[::1]:PORT".
bool readHost(std::string_view text, Place& place) {
    std::string_view rest = text;
    if (text.substr(0, 1) == "[") {
        rest.remove_prefix(1);
        const auto host = takeUpTo(rest, ']');
        if (!host)
            return false;
        place.host = *host;
        if (rest.substr(0, 1) == ":")
            rest.remove_prefix(1);
        else if (!rest.empty())
            return false;
    } else if (const auto host = takeUpTo(rest, ':')) {
        place.host = decoded(*host);
    } else {
        place.host = decoded(rest);
        rest = {};
    }
    if (!rest.empty()) {
        const auto port = numberOf(rest);
        if (!port || *port < 1 || *port > highestPort)
            return false;
        place.port = *port;
    }
    return !place.host.empty();
}

// Whether the server part names a password; it is not shown again, or whoever reads that would read it.
bool namesPassword(std::string_view text) {
    const auto at = text.rfind('@');
    return at != std::string_view::npos && text.substr(0, at).find(':') != std::string_view::npos;
}

Expected<Place> parseServer(std::string_view text) {
    Place place;
    place.engine = Engine::postgresql;
    std::string_view rest = text.substr(postgresqlScheme.size());
    if (namesPassword(rest))
        return noPlace(
            "A password does not belong into the name of an archive; put it into the password file "
            "or the environment variable PGPASSWORD",
            "");
    const auto server = takeUpTo(rest, '/');
    if (!server || rest.empty() || rest.find_first_of("/?#") != std::string_view::npos)
        return noPlace("This archive has no database name", text);
    place.database = decoded(rest);
    std::string_view host = *server;
    if (const auto user = takeUpTo(host, '@'))
        place.user = decoded(*user);
    if (!readHost(host, place))
        return noPlace("This archive has no host, or no port from 1 to 65535", text);
    return place;
}

// "xyz://" with a scheme that is not ours.
bool otherScheme(std::string_view text) {
    const auto end = text.find("://");
    return end != std::string_view::npos && end > 0 &&
           text.substr(0, end).find_first_not_of(
               "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-.") == std::string_view::npos;
}

} // namespace

std::string Place::text() const {
    if (engine == Engine::sqlite)
        return path;
    const bool bracketed = host.find(':') != std::string::npos;
    return std::string(postgresqlScheme) + (user.empty() ? "" : user + "@") +
           (bracketed ? "[" + host + "]" : host) + ":" + std::to_string(port) + "/" + database;
}

Expected<Place> parsePlace(std::string_view text) {
    if (text.substr(0, postgresqlScheme.size()) == postgresqlScheme)
        return parseServer(text);
    Place place;
    if (text.substr(0, sqliteScheme.size()) == sqliteScheme)
        text.remove_prefix(sqliteScheme.size());
    else if (otherScheme(text))
        return noPlace("There is no archive of this kind", text);
    if (text.empty())
        return noPlace("This archive has no path", text);
    place.path = text;
    return place;
}

} // namespace tally::archive
