// SPDX-License-Identifier: GPL-3.0-or-later
#include "Desk.h"

#include "support/Places.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tally::faults {

void Desk::wrong(const std::string& what) {
    ++bad;
    std::printf("WRONG  %s\n", what.c_str());
    std::fflush(stdout);
}

void Desk::figure(const std::string& name, int trials, const std::string& result) const {
    std::printf("%-46s %6d trials  %s\n", name.c_str(), trials, result.c_str());
    std::fflush(stdout);
}

Fault::Fault(const Desk& desk, const std::string& rules, const std::string& path)
    : seen_(desk.folder.write("seen", std::string(2 * sizeof(std::uint64_t), '\0'))) {
    const std::string shim = ::testing::binDir() + "/libtally_faults_shim.so";
    setenv("LD_PRELOAD", shim.c_str(), 1);
    // A sanitizer would insist on being loaded first.
    setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
    setenv("TALLY_FAULT", rules.c_str(), 1);
    setenv("TALLY_FAULT_PATH", path.c_str(), 1);
    setenv("TALLY_FAULT_SEEN", seen_.c_str(), 1);
}

Fault::~Fault() {
    for (const char* name :
         {"LD_PRELOAD", "ASAN_OPTIONS", "TALLY_FAULT", "TALLY_FAULT_PATH", "TALLY_FAULT_SEEN"})
        unsetenv(name);
}

std::uint64_t Fault::number(int which) const {
    const std::string bytes = testing::TemporaryFolder::read(seen_);
    std::uint64_t value = 0;
    std::memcpy(&value, bytes.data() + static_cast<std::size_t>(which) * sizeof value, sizeof value);
    return value;
}

} // namespace tally::faults
