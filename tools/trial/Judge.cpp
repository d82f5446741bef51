// SPDX-License-Identifier: GPL-3.0-or-later
#include "Judge.h"

#include "Truth.h"
#include "sim/Record.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace tally::trial {

namespace {

namespace fs = std::filesystem;

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

int occurrences(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// What was sent at each opening of the port.
std::vector<std::string> sentTexts(const std::vector<sim::Event>& events) {
    std::vector<std::string> texts;
    for (const sim::Event& event : events)
        if (event.kind == sim::Event::Kind::opened)
            texts.emplace_back();
        else if (event.kind == sim::Event::Kind::sent && !texts.empty())
            texts.back() += event.characters;
    return texts;
}

// Whether the characters are the beginnings of these texts, one after the other.
bool areBeginnings(std::string_view characters, const std::vector<std::string>& texts,
                   std::size_t first = 0) {
    if (characters.empty())
        return true;
    if (first == texts.size())
        return false;
    const auto [end, ignored] =
        std::mismatch(characters.begin(), characters.end(), texts[first].begin(), texts[first].end());
    for (auto length = end - characters.begin(); length >= 0; --length)
        if (areBeginnings(characters.substr(static_cast<std::size_t>(length)), texts, first + 1))
            return true;
    return false;
}

// On a busy machine the instrument may begin while the port is only tried, and what it sends before the
// session opens it is dropped.
bool wasSent(const std::string& characters, const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += text;
    return areBeginnings(characters, texts) || holds(all, characters);
}

std::string journalFault(const Remains& remains, const std::vector<sim::Event>& events) {
    int receptions = 0;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(remains.folder + "/Tallyline/journal", none)) {
        if (entry.path().extension() != ".raw")
            continue;
        ++receptions;
        if (!wasSent(bytesOf(entry.path().string()), sentTexts(events)))
            return "the journal holds what was not sent";
        if (bytesOf(fs::path(entry.path()).replace_extension(".log").string()).empty())
            return "the journal knows nothing of a reception";
    }
    return receptions > 1 ? "one session left several receptions" : "";
}

std::string portFault(const Plan& plan, const Remains& remains, const std::vector<sim::Event>& events) {
    bool open = false;
    for (const sim::Event& event : events)
        if (event.kind == sim::Event::Kind::opened || event.kind == sim::Event::Kind::closed)
            open = event.kind == sim::Event::Kind::opened;
    if (open && !plan.has("gone"))
        return "the port was left open";
    const std::string terminal = fs::path(remains.device).filename().string();
    std::error_code none;
    for (const auto& entry : fs::directory_iterator("/run/lock", none)) {
        const std::string name = entry.path().filename().string();
        // A terminal that has gone may be another session's by now, and its lock too.
        const long holder = std::atol(bytesOf(entry.path().string()).c_str());
        if (name.starts_with("LCK..") && (name.ends_with("_" + terminal) || name == "LCK.." + terminal) &&
            (holder <= 0 || kill(static_cast<pid_t>(holder), 0) != 0))
            return "a lock of the port was left behind";
    }
    return "";
}

Verdict judgeRecording(const Plan& plan, const Remains& remains, const std::string& said) {
    const std::string file = bytesOf(remains.output);
    if (!file.starts_with('"') || !file.ends_with("\"\r\n"))
        return {"", "the data file is no whole one"};
    for (const char* words : {"has the following error(s)", "followed the end mark", "Terminated by waiting"})
        if (holds(said, words))
            return {"told", ""};
    if (factsOf(file) == soundFacts(plan))
        return {"right", ""};
    return {"", "the recording is wrong, and nothing was said"};
}

Verdict judgeStatus(const Plan& plan, const std::string& shown) {
    const auto status = nlohmann::json::parse(shown, nullptr, false);
    if (status.is_discarded())
        return {"", "the status is no JSON"};
    const bool blank = plan.type == 1;
    const int minutes[] = {15, 5, 1};
    const auto& volts = status["vbatt"];
    const bool voltsRight =
        volts.is_null() ? plan.has("header-cut") : std::abs(volts.get<double>() - 3.806) < 1e-6;
    const bool modeRight =
        blank
            ? status["mode"].get<std::string>().starts_with("FAIL; value is")
            : status["state"] == "Stopped" && status["interval"] == minutes[(plan.mode - 'a') % 3] &&
                  status["mode"].get<std::string>().starts_with(plan.mode > 'f' ? "Min/Max/Avg" : "Average");
    const bool right = voltsRight && modeRight && status["serial"] == "1234" &&
                       status["timeOn"] == "12:00  Mar 15, 24" &&
                       status["lowBattery"] == plan.has("low-battery");
    return right ? Verdict{"right", ""} : Verdict{"", "the status is wrong: " + shown};
}

Verdict judgeInit(const Plan& plan, const Remains& remains, const std::string& shown) {
    if (occurrences(bytesOf(remains.folder + "/sim.err"), "The memory is erased") != 1)
        return {"", "an initialization is reported, and the instrument was not set once"};
    const bool blank = plan.type == 1;
    const bool named = blank || holds(shown, plan.asks > 'f' ? "Min/Max/Avg  " : "  Average    ");
    return named && holds(shown, "Serial Number 1234") ? Verdict{"right", ""}
                                                       : Verdict{"", "the report is wrong: " + shown};
}

Verdict judgeEnd(const Plan& plan, const Remains& remains, const std::string& said) {
    if (remains.status == 0) {
        const std::string shown = bytesOf(remains.folder + "/out");
        return plan.kind == Kind::status ? judgeStatus(plan, shown)
               : plan.kind == Kind::init ? judgeInit(plan, remains, shown)
                                         : judgeRecording(plan, remains, said);
    }
    if (remains.status != 1)
        return {"", "the program ended with " + std::to_string(remains.status)};
    if (fs::exists(remains.output))
        return {"", "a refused recording was written"};
    if (said.empty())
        return {"", "it was refused without a word"};
    return {remains.cancelled ? "cancelled" : "refused", ""};
}

} // namespace

Verdict judge(const Plan& plan, const Remains& remains) {
    const std::vector<sim::Event> events = sim::parseRecord(bytesOf(remains.folder + "/record.txt"));
    Verdict verdict = judgeEnd(plan, remains, bytesOf(remains.folder + "/cli.err"));
    for (const std::string& fault : {portFault(plan, remains, events), journalFault(remains, events)})
        if (verdict.wrong.empty())
            verdict.wrong = fault;
    return verdict;
}

} // namespace tally::trial
