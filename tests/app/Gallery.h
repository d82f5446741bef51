// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WindowTest.h"

#include "survey/SurveyDesk.h"

#include <QDialog>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tally::testing {

// Every dialog of the program with something in it, and the pages of the main window, to be walked through.
class Gallery : public WindowTest {
protected:
    struct Piece {
        std::string form; // its class
        std::function<std::unique_ptr<QDialog>()> make;
    };

    void SetUp() override;
    const std::vector<Piece>& pieces() const { return pieces_; }
    // Makes each dialog in turn, shows it, and hands it over.
    void walk(const std::function<void(QDialog& dialog, const std::string& form)>& look);
    // The pages that the main window can show, each brought up in turn.
    void walkPages(const std::function<void(const std::string& page)>& look);

private:
    void addBoxes();
    void addFileForms();
    void addInstrumentForms();
    void addSurveyForms();
    void add(const char* form, std::function<std::unique_ptr<QDialog>()> make);

    std::vector<Piece> pieces_;
    Recordings two_; // two open recordings
    SurveyData survey_;
};

} // namespace tally::testing
