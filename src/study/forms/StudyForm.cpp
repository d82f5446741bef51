// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/StudyForm.h"

#include "core/Clock.h"
#include "core/Fault.h"
#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Settings.h"
#include "study/Report.h"
#include "study/StudyWorkbook.h"
#include "study/forms/Block.h"
#include "study/forms/StudyPage.h"
#include "study/forms/StudyPaper.h"
#include "study/forms/StudySide.h"
#include "view/forms/Paper.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tally::study {

struct StudyForm::Subject {
    const Recordings& recordings;
    std::optional<Range> range;
};

StudyForm::StudyForm(StudyServices services, QWidget* parent)
    : QWidget(parent), services_(std::move(services)) {
    setObjectName(QStringLiteral("LoadStudy"));
    side_ = new StudySide(services_.settings, this);
    page_ = new StudyPage(this);
    refusal_ = new QLabel(this);
    refusal_->setObjectName(QStringLiteral("studyRefusal"));
    refusal_->setWordWrap(true);
    refusal_->setMargin(14);
    refusal_->hide();
    auto* middle = new QHBoxLayout;
    middle->addWidget(page_, 1);
    middle->addWidget(side_);
    auto* down = new QVBoxLayout(this);
    down->setContentsMargins(0, 0, 0, 0);
    down->setSpacing(2);
    down->addWidget(makeButtons());
    down->addWidget(refusal_);
    down->addLayout(middle, 1);
    connect(side_, &StudySide::changed, this, [this] { services_.guarded([this] { restudy(); }); });
    connect(page_, &StudyPage::timeChosen, this, &StudyForm::timeChosen);
    clear();
}

StudyForm::~StudyForm() {
    // The page must not outlive what it shows.
    page_->setStudy(nullptr);
}

QWidget* StudyForm::makeButtons() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(4, 4, 4, 0);
    for (QPushButton* button :
         {addButton("copyFigures", "Copy Figures", "Copy all figures as text", &StudyForm::copyFigures),
          addButton("savePicture", "Picture...", "Save the page as a PNG picture", &StudyForm::savePicture),
          addButton("printStudy", "Print...", "Print the study", &StudyForm::print),
          addButton("savePdf", "PDF...", "Save the study as PDF", &StudyForm::savePdf),
          addButton("saveXlsx", "XLSX...", "Save figures and readings as a workbook", &StudyForm::saveXlsx)})
        layout->addWidget(button);
    layout->addStretch(1);
    return row;
}

QPushButton* StudyForm::addButton(const char* name, const char* caption, const char* tip,
                                  void (StudyForm::*action)()) {
    auto* button = new QPushButton(QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this,
            [this, action] { services_.guarded([&] { (this->*action)(); }); });
    buttons_.push_back(button);
    return button;
}

void StudyForm::study(const Recordings& recordings, std::optional<Range> range) {
    subject_ = std::make_unique<Subject>(Subject{recordings, range});
    showNothing(); // what is shown is of files that may have changed
    side_->fitTo(recordings);
    restudy();
}

void StudyForm::clear() {
    subject_.reset();
    showNothing();
}

void StudyForm::showNothing() {
    refusal_->hide();
    page_->setStudy(nullptr);
    study_.reset();
    for (QPushButton* button : buttons_)
        button->setEnabled(false);
}

void StudyForm::restudy() {
    if (!subject_)
        return;
    const auto options = side_->options();
    if (!options) {
        // The side says what is wrong. While it is typed the page stays as it was.
        if (!study_)
            showRefusal(options.error().text);
        return;
    }
    try {
        auto made = studyOf(subject_->recordings, subject_->range, *options);
        if (made)
            showStudy(std::move(*made));
        else
            showRefusal(made.error().message());
    } catch (const Fault& fault) {
        // The fields stay in reach, so that what overflows can be changed.
        showRefusal(fault.what());
    }
}

void StudyForm::showStudy(Study&& made) {
    refusal_->hide();
    page_->setStudy(nullptr);
    study_ = std::make_unique<Study>(std::move(made));
    page_->setStudy(study_.get());
    for (QPushButton* button : buttons_)
        button->setEnabled(true);
}

void StudyForm::showRefusal(const std::string& text) {
    showNothing();
    refusal_->setText(words(text));
    refusal_->show();
}

void StudyForm::copyFigures() {
    QApplication::clipboard()->setText(words(textOf(reportOf(*study_))));
}

void StudyForm::save(const std::string& ending, const std::string& label,
                     const std::function<std::string()>& bytes) {
    const auto path = services_.prompt.chooseFile({.save = true,
                                                   .filter = label + " (*." + ending + ") | *." + ending,
                                                   .folder = services_.settings.get("Directory", "default"),
                                                   .name = "study." + ending});
    if (!path)
        return;
    try {
        services_.files.write(*path, bytes());
    } catch (const Fault& fault) {
        services_.prompt.tell(std::string(fault.what()) + ": " + *path);
    }
}

void StudyForm::savePicture() {
    save("png", "pictures", [this] { return studyPicture(*study_); });
}

void StudyForm::savePdf() {
    save("pdf", "PDF files", [this] { return studyPdf(*study_); });
}

void StudyForm::saveXlsx() {
    save("xlsx", "workbooks",
         [this] { return services_.xlsx(workbookOf(*study_, services_.clock.localTime())); });
}

void StudyForm::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Load study"));
    printer.setCreator(QStringLiteral("Tallyline"));
    QPrintDialog dialog(&printer, this);
    dialog.setObjectName(QStringLiteral("printDialog"));
    dialog.setAccessibleName(QStringLiteral("Print"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    // A PDF printer writes its file as every file is written: the whole of it or nothing.
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty()) {
        services_.files.write(printer.outputFileName().toStdString(), studyPdf(*study_));
        return;
    }
    std::string why = printerProblem(printer.printerName().toStdString());
    const bool range = printer.printRange() == QPrinter::PageRange;
    if (why.empty() &&
        (!paintStudy(*study_, printer, range ? printer.fromPage() : 1, range ? printer.toPage() : 0) ||
         printer.printerState() == QPrinter::Error))
        why = "The printer \"" + printer.printerName().toStdString() + "\" failed";
    if (!why.empty())
        services_.prompt.tell(why);
}

} // namespace tally::study
