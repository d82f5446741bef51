// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/SaveText.h"
#include "support/MemoryFiles.h"
#include "support/Places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

namespace tally {
namespace {

// Reads files of the source tree.
class SourceFiles : public Files {
public:
    bool exists(const std::string& path) const override { return std::filesystem::exists(path); }
    std::string read(const std::string& path, std::uint64_t maximum) const override {
        std::ifstream file(path, std::ios::binary);
        if (!file)
            throw fault::fileNotFound();
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>())
            .substr(0, maximum);
    }
    void write(const std::string&, const std::string&) override { throw fault::permissionDenied(); }
};

const std::string data = ::testing::sourceDir() + "/tests/data/";
const std::string samples = ::testing::sourceDir() + "/samples/";

class GoldenFiles : public ::testing::TestWithParam<const char*> {};

TEST_P(GoldenFiles, OpenedAndSavedByteForByte) {
    const SourceFiles files;
    Recordings recordings;
    ASSERT_TRUE(Fileopen(recordings, files, data + GetParam() + ".dat"));
    EXPECT_EQ(tally::quoted(buildDataText(recordings, 0, recordings.all(0))),
              files.read(data + GetParam() + ".saved.dat", 100000));
}

TEST_P(GoldenFiles, SavedFilesSayTheSameReadings) {
    const SourceFiles files;
    Recordings original;
    Recordings saved;
    ASSERT_TRUE(Fileopen(original, files, data + GetParam() + ".dat"));
    ASSERT_TRUE(Fileopen(saved, files, data + GetParam() + ".saved.dat"));
    EXPECT_EQ(saved.gReadings[0], original.gReadings[0]);
    EXPECT_EQ(saved.gInfo[0].form == 'T', original.gInfo[0].form == 'T');
    EXPECT_EQ(saved.gInfo[0].low, original.gInfo[0].low);
}

INSTANTIATE_TEST_SUITE_P(Of, GoldenFiles, ::testing::Values("high", "low", "triples", "formT", "older"),
                         [](const auto& file) { return std::string(file.param); });

TEST(Samples, TheFeederHasFourWeeksASpikeAnOutageAndNotes) {
    const SourceFiles files;
    Recordings recordings;
    ASSERT_TRUE(Fileopen(recordings, files, samples + "feeder-15min.dat"));
    const FileFacts& info = recordings.gInfo[0];
    EXPECT_EQ(info.count, 4 * 7 * 24 * 4);
    EXPECT_EQ(screenTime(info.start), "00:00  Mar 04, 24");
    EXPECT_EQ(info.unit(), 'A');
    EXPECT_FALSE(info.low);
    EXPECT_EQ(info.largest, 8640);
    EXPECT_EQ(info.smallest, 0);
    EXPECT_EQ(recordings.gNotes[0][0], "Mill Road substation");
}

TEST(Samples, TheOtherKindsOpen) {
    const SourceFiles files;
    struct Kind {
        const char* name;
        char mode;
        char unit;
        bool low;
        int count;
    };
    for (const Kind& kind : {Kind{"feeder-5min-low.dat", 'b', 'A', true, 7 * 288},
                             {"workshop-1min-minmaxavg.dat", 'l', 'A', false, 2 * 1440 * 3},
                             {"line-voltage.dat", 'a', 'V', true, 14 * 96}}) {
        Recordings recordings;
        ASSERT_TRUE(Fileopen(recordings, files, samples + kind.name)) << kind.name;
        EXPECT_EQ(recordings.gInfo[0].modeLetter, kind.mode) << kind.name;
        EXPECT_EQ(recordings.gInfo[0].unit(), kind.unit) << kind.name;
        EXPECT_EQ(recordings.gInfo[0].low, kind.low) << kind.name;
        EXPECT_EQ(recordings.gInfo[0].count, kind.count) << kind.name;
        EXPECT_EQ(recordings.gInfo[0].unreadable, 0) << kind.name;
    }
}

TEST(Samples, TheStationsTotalFitsItsReports) {
    const SourceFiles files;
    std::vector<int> total;
    ReadingTime start;
    for (const char* feeder : {"maple", "birch", "cedar", "elm"})
        for (const char* phase : {"red", "white", "blue"}) {
            Recordings recordings;
            const std::string path = samples + "station/" + feeder + "-" + phase + ".dat";
            ASSERT_TRUE(Fileopen(recordings, files, path)) << path;
            const auto& readings = recordings.gReadings[0];
            if (total.empty()) {
                total.resize(readings.size());
                start = recordings.gInfo[0].start;
            }
            ASSERT_EQ(readings.size(), total.size()) << path;
            EXPECT_EQ(recordings.gInfo[0].start, start) << path;
            std::transform(readings.begin(), readings.end(), total.begin(), total.begin(), std::plus<>());
        }
    EXPECT_LT(*std::max_element(total.begin(), total.end()), 32767);
    EXPECT_GT(*std::max_element(total.begin(), total.end()), 10000);
}

} // namespace
} // namespace tally
