// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"
#include "Programs.h"

#include <chrono>
#include <filesystem>
#include <memory>

#include <sys/resource.h>

namespace tally::bench {

namespace {

namespace fs = std::filesystem;

constexpr int readingsPerFile = 10710;

// A folder of recordings of 10,710 readings each.
class Fleet {
public:
    explicit Fleet(int files) {
        char made[] = "/tmp/bench-XXXXXX";
        if (mkdtemp(made) == nullptr)
            throw std::runtime_error("no temporary folder");
        folder_ = made;
        for (int i = 0; i < files; ++i)
            write(i);
    }
    ~Fleet() { fs::remove_all(folder_); }
    Fleet(const Fleet&) = delete;
    Fleet& operator=(const Fleet&) = delete;

    const std::string& folder() const { return folder_; }

private:
    void write(int number) const {
        char name[32];
        std::snprintf(name, sizeof name, "/%05d.dat", number);
        std::ofstream file(folder_ + name, std::ios::binary);
        file << "\"\r\n\n\nPQXa   4127                   03-15-24 10:30   Vbatt 3E8\r";
        for (int i = 0; i < readingsPerFile; ++i) {
            char field[8];
            std::snprintf(field, sizeof field, "%4d", (i * 37 + number) % 1000);
            file << (i > 0 && i % 10 == 0 ? "\n\r" : "") << field;
        }
        file << "\x1a\"\r\n";
    }

    std::string folder_;
};

std::vector<std::string> batchInfo(const std::string& folder, const char* workers, int times = 1) {
    std::vector<std::string> arguments = {"batch", "info", "--json", "-j", workers};
    arguments.insert(arguments.end(), static_cast<std::size_t>(times), folder);
    return arguments;
}

void cat(const std::string& folder) {
    if (std::system(("cat " + folder + "/*.dat >/dev/null").c_str()) != 0)
        throw std::runtime_error("cat failed");
}

// The most memory, in gigabytes, that a call takes.
double memoryOf(const std::vector<std::string>& arguments) {
    const pid_t child = fork();
    if (child == 0) {
        runToEnd("tallyline-cli", arguments);
        rusage used{};
        getrusage(RUSAGE_CHILDREN, &used);
        std::FILE* const out = std::fopen("/tmp/bench-memory", "w");
        std::fprintf(out, "%ld", used.ru_maxrss);
        std::fclose(out);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    long kilobytes = 0;
    std::ifstream("/tmp/bench-memory") >> kilobytes;
    std::remove("/tmp/bench-memory");
    return static_cast<double>(kilobytes) / 1e6;
}

double secondsOf(const std::function<void()>& run) {
    const auto begin = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace

void registerGoals() {
    static const Fleet thousand(1000);
    static const Fleet hundred(100);
    const std::string all = thousand.folder();
    const std::string some = hundred.folder();
    goal(
        "batch_info_1000", [all] { runToEnd("tallyline-cli", batchInfo(all, "2")); }, [all] { cat(all); },
        1.0);
    goal(
        "batch_two_threads", [all] { runToEnd("tallyline-cli", batchInfo(all, "2")); },
        [all] { runToEnd("tallyline-cli", batchInfo(all, "1")); }, 1 / 1.6);
    goalTimed(
        "batch_memory_10000", [all] { return memoryOf(batchInfo(all, "2", 10)); },
        [some] { return memoryOf(batchInfo(some, "2")); }, 1.2);
    // Seconds a picture.
    goalTimed(
        "batch_plot",
        [some] {
            return secondsOf([&] {
                       runToEnd("tallyline-cli", {"batch", "plot", some, "-o", some + "/out"});
                   }) /
                   100;
        },
        [some] {
            return secondsOf([&] {
                       for (const char* name : {"/00000", "/00001", "/00002"})
                           runToEnd("tallyline-cli",
                                    {"plot", some + name + ".dat", "-o", some + name + ".png"});
                   }) /
                   3;
        },
        0.2);
}

} // namespace tally::bench
