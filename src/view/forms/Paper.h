// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Prompt.h"
#include "view/Plot.h"
#include "view/forms/ChartNote.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QPrinter;
class QWidget;

namespace tally {

// A fixed-column text for the printer (UTF-8; CR, LF and CR LF break a line, FF begins a page).
struct TextReport {
    std::string title;   // name of the print job and first line of each page; may be empty
    std::string heading; // repeated on each page above the text; may be empty
    std::string text;
    std::string user;        // footer, left
    std::string date;        // footer, middle
    std::string remark = {}; // below the title; may be empty
};

// A chart on paper.
struct ChartReport {
    const Plot& plot;
    const std::vector<ChartNote>& notes;
    std::string user = {};           // footer
    std::string remark = {};         // above it; may be empty
    std::optional<Sight> sight = {}; // the part that is drawn; nothing is the whole
};

// Prints a report in "Times New Roman", each field at its column. A printer that writes a PDF file writes it
// through files, the whole of it or nothing. False with a message in why: the printer has gone, would not
// begin, failed on the way, the disk is full.
bool printText(const TextReport& report, QPrinter& printer, Files& files, std::string* why);
// Prints the chart on one page, the user's name below it.
bool printChart(const ChartReport& report, QPrinter& printer, Files& files, std::string* why);
// Why nothing can be printed on the printer of this name; empty when it is there.
std::string printerProblem(const std::string& name);
// The bytes of the PDF that printText would write on A4.
std::string pdfOfText(const TextReport& report);

// Print dialog and preview for reports and charts. Failures are told through the prompt; false then, and when
// the user cancelled.
class Paper {
public:
    Paper(Prompt& prompt, Files& files, QWidget* parent) : prompt_(prompt), files_(files), parent_(parent) {}

    bool printWithDialog(const TextReport& report);
    bool printWithDialog(const ChartReport& report);
    // True when it was also printed from the preview.
    bool preview(const TextReport& report);
    bool preview(const ChartReport& report);

private:
    using Show = std::function<void(QPrinter&)>;
    using Print = std::function<bool(QPrinter&, std::string* why)>;

    bool askAndPrint(QPrinter& printer, const Print& print);
    bool previewAndPrint(QPrinter& printer, const Show& show, const Print& print);

    Prompt& prompt_;
    Files& files_;
    QWidget* parent_;
};

} // namespace tally
