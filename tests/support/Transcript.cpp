// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Transcript.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tally::testing {

namespace {

// The characters between double quotes: \r \n \t \\ \" and \xNN stand for one each.
std::string literal(const std::string& text) {
    if (text.size() < 2 || text.front() != '"' || text.back() != '"')
        throw std::runtime_error("no text in quotes: " + text);
    std::string characters;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] != '\\') {
            characters += text[i];
            continue;
        }
        const char kind = text.at(++i);
        if (kind == 'x') {
            characters += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            characters += kind == 'r' ? '\r' : kind == 'n' ? '\n' : kind == 't' ? '\t' : kind;
        }
    }
    return characters;
}

// Takes the first word, and the blanks after it.
std::string word(std::string& rest) {
    const std::string first = rest.substr(0, rest.find(' '));
    rest.erase(0, std::min(rest.size(), rest.find_first_not_of(' ', first.size())));
    return first;
}

class Reader {
public:
    explicit Reader(Transcript& transcript) : transcript_(transcript) {}

    void line(std::string rest) {
        const std::string key = word(rest);
        if (key == "+")
            more_->append(literal(rest));
        else if (key.find_first_not_of("0123456789") == std::string::npos)
            event(std::stoll(key), rest);
        else if (key == "kept")
            more_ = &(transcript_.kept = literal(rest));
        else if (key == "told")
            more_ = &transcript_.told.emplace_back(literal(rest));
        else if (key == "field")
            field(rest);
        else
            transcript_.facts[key] = rest;
    }

private:
    void event(std::int64_t time, std::string rest) {
        const std::string who = word(rest);
        const bool characters = who == "computer" || who == "instrument";
        if (!characters && who != "open" && who != "dtr")
            throw std::runtime_error("nobody is called " + who);
        transcript_.events.push_back({time, who, characters ? literal(rest) : rest});
        more_ = &transcript_.events.back().text;
    }
    void field(std::string rest) {
        const std::string key = word(rest);
        more_ = &(transcript_.fields[key] = literal(rest));
    }

    Transcript& transcript_;
    std::string* more_ = nullptr; // what a line that begins with "+" goes on with
};

} // namespace

int Transcript::baudAt(std::size_t event) const {
    for (std::size_t i = event + 1; i-- > 0;)
        if (events[i].who == "open")
            return std::stoi(events[i].text);
    throw std::runtime_error(name + ": the port is never opened");
}

std::string Transcript::sent() const {
    std::string all;
    for (const Event& event : events)
        if (event.who == "instrument")
            all += event.text;
    return all;
}

Transcript readTranscript(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("no file " + path);
    Transcript transcript;
    transcript.name = std::filesystem::path(path).stem().string();
    Reader reader(transcript);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (line.empty() || line.front() == '#')
            continue;
        try {
            reader.line(line);
        } catch (const std::exception& problem) {
            throw std::runtime_error(path + ", line " + std::to_string(number) + ": " + problem.what());
        }
    }
    return transcript;
}

std::vector<Transcript> readTranscripts(const std::string& folder) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    std::vector<Transcript> all;
    for (const std::string& path : paths)
        all.push_back(readTranscript(path));
    return all;
}

} // namespace tally::testing
