// SPDX-License-Identifier: GPL-3.0-or-later
// The sessions against conversations written by hand.
#include "support/Transcript.h"

#include "Bench.h"
#include "control/Initialize.h"
#include "control/Recover.h"
#include "core/Numbers.h"
#include "link/DownloadSession.h"
#include "link/StatusCheck.h"
#include "support/Places.h"

#include <gmock/gmock.h>
#include <map>

namespace tally {
namespace {

using namespace testing;
using ::testing::Contains;
using ::testing::HasSubstr;

constexpr std::int64_t tolerance = 60; // milliseconds, for pauses that are told as "about"

// The instrument's part of a transcript, and what the program does meanwhile.
class Play {
public:
    explicit Play(const Transcript& transcript)
        : transcript_(transcript), bench_(std::stoi(transcript.fact("type"))) {
        if (transcript.fact("answers") == "yes")
            bench_.user.another = {Answer::Yes};
        if (transcript.has("computer-clock"))
            bench_.waiter.start = *parseHeaderTime(transcript.fact("computer-clock"));
        bench_.line.onOpen = [this](const std::string& settings) {
            note("open", settings.substr(0, settings.find(',')));
        };
        bench_.line.onOutput = [this](const std::string& characters) { note("computer", characters); };
        bench_.line.onDtr = [this](bool on) {
            if (!on || low_)
                note("dtr", on ? "high" : "low");
            low_ = !on;
        };
        for (std::size_t i = 0; i < transcript.events.size(); ++i)
            if (transcript.events[i].who == "instrument")
                schedule(transcript.events[i], transcript.baudAt(i));
    }

    void run() {
        const std::string session = transcript_.fact("session");
        if (session == "download")
            keep(DownloadSession(session_).DownLoadProc());
        else if (session == "recover")
            keep(RecoverSession(session_).RecoverProc(bench_.files, "/temp.dat"));
        else if (session == "status")
            read(StatusCheckSession(session_).StatusCheck());
        else
            EXPECT_TRUE(initialize());
        EXPECT_FALSE(bench_.line.isOpen());
    }
    std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (const Message& message : bench_.user.shown)
            texts.push_back(message.text);
        return texts;
    }

    std::vector<Transcript::Event> done; // by the program
    std::string kept;
    std::map<std::string, std::string> fields;

private:
    void note(const std::string& who, const std::string& text) {
        done.push_back({bench_.waiter.now(), who, text});
    }
    void schedule(const Transcript::Event& event, int baud) {
        for (std::size_t i = 0; i < event.text.size(); ++i) {
            const auto bits = static_cast<std::int64_t>(10 * (i + 1));
            bench_.line.sendAt(event.time + bits * 1000 / baud, event.text.substr(i, 1));
        }
    }
    bool initialize() {
        InitializeSession session(bench_.services(), bench_.panel);
        return session.Initialize(transcript_.fact("asks").at(0)).has_value();
    }
    void keep(const SessionResult<PendingDownload>& received) { kept = received ? received->text : ""; }
    void read(const SessionResult<StatusFields>& status) {
        if (!status)
            return;
        fields = {{"type", status->type},
                  {"serial", status->serial},
                  {"state", status->state},
                  {"mode", status->mode},
                  {"interval", status->interval ? std::to_string(*status->interval) : ""},
                  {"whenFull", status->whenFull},
                  {"timeOn", status->timeOn},
                  {"vbatt", status->vbatt ? Format(*status->vbatt, ".000") : ""},
                  {"lowBattery", status->lowBattery ? "yes" : "no"}};
    }

    const Transcript& transcript_;
    Bench bench_;
    Session session_ = bench_.session();
    bool low_ = false;
};

void expectSame(const std::vector<Transcript::Event>& done, const Transcript& transcript) {
    std::vector<Transcript::Event> wanted;
    for (const Transcript::Event& event : transcript.events)
        if (event.who != "instrument")
            wanted.push_back(event);
    ASSERT_EQ(done.size(), wanted.size());
    for (std::size_t i = 0; i < done.size(); ++i) {
        EXPECT_EQ(done[i].who, wanted[i].who);
        EXPECT_EQ(done[i].text, wanted[i].text);
        EXPECT_LE(std::abs(done[i].time - wanted[i].time), tolerance)
            << done[i].who << " at " << done[i].time << ", not " << wanted[i].time;
    }
}

class SessionTranscript : public ::testing::TestWithParam<Transcript> {};

TEST_P(SessionTranscript, GoesAsItIsWritten) {
    const Transcript& transcript = GetParam();
    Play play(transcript);
    play.run();
    expectSame(play.done, transcript);
    EXPECT_EQ(play.kept, transcript.kept);
    for (const std::string& text : transcript.told)
        EXPECT_THAT(play.shown(), Contains(HasSubstr(text)));
    for (const auto& [key, value] : transcript.fields)
        EXPECT_EQ(play.fields[key], value) << key;
}

INSTANTIATE_TEST_SUITE_P(All, SessionTranscript,
                         ::testing::ValuesIn(readTranscripts(::testing::sourceDir() +
                                                             "/tests/data/transcripts")),
                         [](const auto& test) {
                             std::string name = test.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
} // namespace tally
