// SPDX-License-Identifier: GPL-3.0-or-later
// Stands between a program and the disk (LD_PRELOAD) and lets chosen calls fail, wait or kill the program:
//   TALLY_FAULT       faults, "CALL NTH ACTION[ NUMBER]", joined with ';'
//                     CALL   write, datasync, sync (of a folder), rename, lock, allocate
//                     NTH    the how many-th call of that kind, from 1; 0 for each
//                     ACTION error NUMBER (errno; a write takes half before it), kill, killafter,
//                            before NUMBER or after NUMBER (milliseconds of waiting)
//   TALLY_FAULT_PATH  only files whose path holds this text
//   TALLY_FAULT_SEEN  a file of two 64-bit numbers that are kept up to date: how often a fault struck, and
//   how
//                     many characters were read from terminals
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

enum Call { writing, datasync, folderSync, renaming, locking, allocating, calls };
const char* const names[calls] = {"write", "datasync", "sync", "rename", "lock", "allocate"};

struct Rule {
    Call call;
    long nth;
    char action[16];
    long number;
};

struct Seen {
    std::atomic<std::uint64_t> struck;
    std::atomic<std::uint64_t> characters;
};

struct State {
    Rule rules[16] = {};
    int count = 0;
    const char* path = nullptr;
    Seen none = {};
    Seen* seen = &none;
    std::atomic<long> counted[calls] = {};
};

template <typename Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void readRules(State& state) {
    const char* text = getenv("TALLY_FAULT");
    while (text != nullptr && *text != '\0' && state.count < 16) {
        Rule& rule = state.rules[state.count];
        char call[16] = {};
        if (std::sscanf(text, "%15s %ld %15[a-z] %ld", call, &rule.nth, rule.action, &rule.number) >= 3)
            for (int i = 0; i < calls; ++i)
                if (std::strcmp(call, names[i]) == 0) {
                    rule.call = static_cast<Call>(i);
                    ++state.count;
                    break;
                }
        text = std::strchr(text, ';');
        text = text != nullptr ? text + 1 : nullptr;
    }
}

State& state() {
    static State& made = *[] {
        auto* fresh = new State;
        readRules(*fresh);
        fresh->path = getenv("TALLY_FAULT_PATH");
        const char* seen = getenv("TALLY_FAULT_SEEN");
        const int file = seen != nullptr ? open(seen, O_RDWR | O_CLOEXEC) : -1;
        void* shared =
            file < 0 ? MAP_FAILED : mmap(nullptr, sizeof(Seen), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        if (shared != MAP_FAILED)
            fresh->seen = static_cast<Seen*>(shared);
        return fresh;
    }();
    return made;
}

// Lock files come and go beside what is written.
bool isLock(const char* path) {
    const std::size_t length = std::strlen(path);
    return length > 5 && std::strcmp(path + length - 5, ".lock") == 0;
}

bool isOurs(const char* path) {
    if (isLock(path))
        return false;
    return state().path == nullptr || std::strstr(path, state().path) != nullptr;
}

bool isOurs(int file) {
    char link[64];
    char path[PATH_MAX] = {};
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    return readlink(link, path, sizeof path - 1) > 0 && isOurs(path);
}

// The rule that strikes now, if one does; the call is counted.
const Rule* strike(Call call) {
    State& all = state();
    const long nth = ++all.counted[call];
    for (int i = 0; i < all.count; ++i)
        if (all.rules[i].call == call && (all.rules[i].nth == 0 || all.rules[i].nth == nth)) {
            ++all.seen->struck;
            return &all.rules[i];
        }
    return nullptr;
}

bool is(const Rule* rule, const char* action) {
    return rule != nullptr && std::strcmp(rule->action, action) == 0;
}

void wait(long milliseconds) {
    timespec left = {milliseconds / 1000, milliseconds % 1000 * 1000000};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

// What comes before the call; true when it is not made.
bool before(const Rule* rule) {
    if (is(rule, "kill"))
        kill(getpid(), SIGKILL);
    if (is(rule, "before"))
        wait(rule->number);
    if (is(rule, "error"))
        errno = static_cast<int>(rule->number);
    return is(rule, "error");
}

template <typename Result>
Result after(const Rule* rule, Result result) {
    const int error = errno;
    if (is(rule, "killafter"))
        kill(getpid(), SIGKILL);
    if (is(rule, "after"))
        wait(rule->number);
    errno = error;
    return result;
}

template <typename Make>
int call(Call kind, bool ours, const Make& make) {
    const Rule* rule = ours ? strike(kind) : nullptr;
    return before(rule) ? -1 : after(rule, make());
}

} // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
    static const auto real = next<ssize_t (*)(int, const void*, size_t)>("write");
    if (state().count == 0 || !isOurs(file))
        return real(file, bytes, count);
    const Rule* rule = strike(writing);
    if (is(rule, "error") && rule->nth != 0 && count > 1) {
        // A disk that fills up takes a part, and nothing from then on.
        const_cast<Rule*>(rule)->nth = 0;
        return real(file, bytes, count / 2);
    }
    return before(rule) ? -1 : after(rule, real(file, bytes, count));
}

ssize_t read(int file, void* bytes, size_t count) {
    static const auto real = next<ssize_t (*)(int, void*, size_t)>("read");
    const ssize_t got = real(file, bytes, count);
    const int error = errno;
    if (got > 0 && isatty(file) != 0)
        state().seen->characters += static_cast<std::uint64_t>(got);
    errno = error;
    return got;
}

int fdatasync(int file) {
    static const auto real = next<int (*)(int)>("fdatasync");
    return call(datasync, isOurs(file), [&] { return real(file); });
}

int fsync(int file) {
    static const auto real = next<int (*)(int)>("fsync");
    return call(folderSync, isOurs(file), [&] { return real(file); });
}

int renameat(int from, const char* old, int to, const char* name) noexcept {
    static const auto real = next<int (*)(int, const char*, int, const char*)>("renameat");
    return call(renaming, isOurs(to), [&] { return real(from, old, to, name); });
}

int renameat2(int from, const char* old, int to, const char* name, unsigned flags) noexcept {
    static const auto real = next<int (*)(int, const char*, int, const char*, unsigned)>("renameat2");
    return call(renaming, isOurs(to), [&] { return real(from, old, to, name, flags); });
}

int rename(const char* old, const char* name) noexcept {
    static const auto real = next<int (*)(const char*, const char*)>("rename");
    return call(renaming, isOurs(name), [&] { return real(old, name); });
}

// Gives the error instead of setting it.
int posix_fallocate(int file, off_t start, off_t length) {
    static const auto real = next<int (*)(int, off_t, off_t)>("posix_fallocate");
    const int error = call(allocating, isOurs(file), [&] { return real(file, start, length); });
    return error < 0 ? errno : error;
}

int flock(int file, int operation) noexcept {
    static const auto real = next<int (*)(int, int)>("flock");
    return call(locking, isOurs(file), [&] { return real(file, operation); });
}
}
