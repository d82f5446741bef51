// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tally {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

// A message box. Texts are UTF-8; CR, LF and CR LF all break a line.
struct Message {
    std::string text;
    std::string title = "Tallyline";
    Buttons buttons = Buttons::Ok;
    bool exclamation = false;
    Answer defaultAnswer = Answer::Ok;
};

// An input box: one line of text, pre-filled. `choices` makes it an editable list.
struct InputQuestion {
    std::string text;
    std::string preset;
    std::vector<std::string> choices = {};
    std::string title = "Tallyline";
};

// A file dialog. The filter is "label|pattern|label|pattern"; the folder may be empty (current folder).
struct FileQuestion {
    bool save = false;
    std::string filter;
    std::string folder;
    std::string name = {};
    std::string title = {}; // empty for that of the system
};

// The one way in which logic asks and tells. The window answers with boxes, the command line with options, a
// test with queued answers.
class Prompt {
public:
    virtual ~Prompt() = default;
    virtual Answer show(const Message& message) = 0;
    // Nothing when cancelled.
    virtual std::optional<std::string> input(const InputQuestion& question) = 0;
    // The full path (UTF-8), nothing when cancelled. An existing file was already confirmed.
    virtual std::optional<std::string> chooseFile(const FileQuestion& question) = 0;

    void tell(const std::string& text) { show({.text = text}); }
};

} // namespace tally
