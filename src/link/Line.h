// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace tally {

// Keeps characters.
struct Keeper {
    std::function<void(std::string_view characters)> keep = {};
    // Where the next ones may be read to, so that they are kept from the moment in which they are read; none,
    // or empty, for anywhere.
    std::function<std::span<char>()> room = {};
};

// A serial line as a session sees it, under the names of its properties.
class Line {
public:
    virtual ~Line() = default;

    // COM port 1 to 8, or 0 for a device that is given by its path; takes effect at the next opening.
    virtual void CommPort(int number) = 0;
    // "9600,N,8,1" or "115200,N,8,1"; takes effect at once on an open port.
    virtual void Settings(const std::string& settings) = 0;
    // Most characters that one Input gives (always 1 in a session).
    virtual void InputLen(int length) = 0;
    // Input stops at ctrl/Z: what comes after it is dropped until the next opening.
    virtual void EOFEnable(bool on) = 0;
    // Best effort: a line without modem signals ignores it.
    virtual void DTREnable(bool on) = 0;
    // Opens or closes. Opening throws Fault 8002 "Invalid port number" (not there), 8005 "Port already open"
    // (in use by another program) or 70 "Permission denied"; closing never throws. What waited before the
    // opening is dropped.
    virtual void PortOpen(bool open) = 0;
    // False also when the line closed itself on its first real error.
    virtual bool isOpen() const = 0;
    // Who is given every character the moment it arrives, before anything else looks at it, whatever becomes
    // of it then; nothing for nobody.
    virtual void onArrival(Keeper keeper) = 0;
    // What has arrived, at most InputLen characters; empty when nothing has.
    virtual std::string Input() = 0;
    // The same again and again: appends what has arrived until `into` holds `maximum` characters.
    virtual void inputAll(std::string& into, std::size_t maximum) {
        for (std::string next; into.size() < maximum && !(next = Input()).empty();)
            into += next;
    }
    virtual void Output(std::string_view characters) = 0;
    // Why the line closed itself, in words for a user that name port and cause; empty otherwise.
    virtual std::string problem() const = 0;
};

// Opens and closes a port at once, so that a bad one is found before any dialog. Throws what PortOpen throws.
inline void probePort(Line& line, int commPort) {
    line.CommPort(commPort);
    line.PortOpen(true);
    line.PortOpen(false);
}

} // namespace tally
