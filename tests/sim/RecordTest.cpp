// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Record.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

namespace tally {
namespace {

using namespace sim;
using Kind = Event::Kind;

const std::vector<Event> events = {{Kind::opened, 5, 0, ""},
                                   {Kind::rate, 6, 9600, ""},
                                   {Kind::sent, 500, 0, std::string("K\r\n\"\\\x1a\xff\0z", 9)},
                                   {Kind::received, 500, 0, "\t"},
                                   {Kind::closed, 900, 0, ""}};

TEST(Record, IsTextThatAPersonCanRead) {
    std::ostringstream out;
    Recorder recorder(out);
    for (const Event& event : events)
        recorder.write(event);
    EXPECT_EQ(out.str(), "# What happened on a serial line, seen from the instrument: milliseconds, event.\n"
                         "5 open\n"
                         "6 rate 9600\n"
                         "500 sent \"K\\r\\n\\\"\\\\\\x1A\\xFF\\x00z\"\n"
                         "500 received \"\\x09\"\n"
                         "900 close\n");
}

TEST(Record, ReadsBackAsItWasWritten) {
    std::ostringstream out;
    Recorder recorder(out);
    for (const Event& event : events)
        recorder.write(event);
    EXPECT_EQ(parseRecord(out.str()), events);
}

TEST(Record, EveryByteValueSurvives) {
    std::string all;
    for (int value = 0; value < 256; ++value)
        all += static_cast<char>(value);
    std::ostringstream out;
    Recorder(out).write({Kind::sent, 1, 0, all});
    EXPECT_EQ(parseRecord(out.str()).at(0).characters, all);
}

TEST(Record, RemarksBlankLinesAndOtherLineEndsAreTaken) {
    EXPECT_EQ(parseRecord("# a\n\n5 open\r\n7 close").size(), 2U);
    EXPECT_TRUE(parseRecord("").empty());
}

TEST(Record, RefusesWithTheNumberOfTheLine) {
    for (const char* line : {"x", "open", "5", "5 sent", "5 sent x", "5 sent \"", "5 sent \"\\q\"",
                             "5 sent \"\\x1\"", "5 sent \"a\"b\"", "5 sent \"a\\\"", "5 rate", "5 rate x",
                             "5 rate -1", "-5 open", "5 open now", "99999999999999999999 open", "4 open"}) {
        try {
            parseRecord(std::string("5 open\n") + line + "\n6 close\n");
            ADD_FAILURE() << line;
        } catch (const std::invalid_argument& problem) {
            EXPECT_EQ(std::string(problem.what()).substr(0, 6), "line 2") << line;
        }
    }
}

} // namespace
} // namespace tally
