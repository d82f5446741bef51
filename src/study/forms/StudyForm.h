// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;

namespace tally {
class Clock;
class Files;
class Prompt;
class Settings;
struct Range;
struct Recordings;
struct Workbook;
} // namespace tally

namespace tally::study {

class StudyPage;
class StudySide;
struct Study;

// What the form works with.
struct StudyServices {
    Files& files;
    Prompt& prompt;
    Settings& settings; // section "Study": the options
    Clock& clock;
    std::function<std::string(const Workbook&)> xlsx;          // the bytes of a workbook
    std::function<void(const std::function<void()>&)> guarded; // runs a step and reports its faults
};

// The load study of the open files: the page, its options at the side, applied at once, and buttons to take
// it elsewhere.
class StudyForm : public QWidget {
    Q_OBJECT

public:
    explicit StudyForm(StudyServices services, QWidget* parent = nullptr);
    ~StudyForm() override;

    // Studies the open files, or a range of the first one. They must stay as they are until the next call or
    // clear().
    void study(const Recordings& recordings, std::optional<Range> range);
    void clear();

Q_SIGNALS:
    void timeChosen(qint64 minutes); // a click on the page, minutes since 1970-01-01 00:00

private:
    QWidget* makeButtons();
    QPushButton* addButton(const char* name, const char* caption, const char* tip,
                           void (StudyForm::*action)());
    void restudy();
    void showStudy(Study&& made);
    void showNothing();
    void showRefusal(const std::string& text);
    void copyFigures();
    void savePicture();
    void print();
    void savePdf();
    void saveXlsx();
    void save(const std::string& ending, const std::string& label, const std::function<std::string()>& bytes);

    StudyServices services_;
    struct Subject; // the open files and the range that is studied
    std::unique_ptr<Subject> subject_;
    std::unique_ptr<Study> study_;
    StudySide* side_;
    StudyPage* page_;
    QLabel* refusal_;
    std::vector<QPushButton*> buttons_;
};

} // namespace tally::study
