// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/QtPrompt.h"

#include "app/forms/MessageBox.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>

namespace tally {
namespace {

template <typename Dialog>
void whenOpen(std::function<void(Dialog&)> action) {
    QTimer::singleShot(0, qApp, [action] {
        auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        action(*dialog);
    });
}

QLabel& label(MessageBox& box) {
    return *box.findChild<QLabel*>(QStringLiteral("MessageText"));
}

void press(QDialog& box, const QString& caption) {
    for (auto* button : box.findChildren<QPushButton*>())
        if (button->text().remove(QLatin1Char('&')) == caption)
            return button->click();
    FAIL() << "no button " << caption.toStdString();
}

TEST(QtPrompt, EveryKindOfLineBreakBreaksALineAndBlanksStay) {
    MessageBox box({.text = "  one\rtwo  \r\nthree\nfour   <b>"});
    EXPECT_EQ(label(box).text(), QStringLiteral("  one\ntwo  \nthree\nfour   <b>"));
    EXPECT_EQ(label(box).textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Tallyline"));
}

TEST(QtPrompt, StandsUnderTheDialogThatItSpeaksOf) {
    QDialog about;
    about.setGeometry(100, 50, 300, 200);
    about.show();
    MessageBox box({.text = " PROCEED"}, &about);
    box.show();
    EXPECT_GE(box.frameGeometry().top(), about.frameGeometry().bottom());
}

TEST(QtPrompt, PaddedTextsAreInAFixedWidthFontAndOthersAreNot) {
    MessageBox padded({.text = "             CAUTION          \r    For Voltage Recorders press  "});
    EXPECT_TRUE(QFontInfo(label(padded).font()).fixedPitch());
    MessageBox plain({.text = "Error - No file available.  Need to open a file."});
    EXPECT_FALSE(QFontInfo(label(plain).font()).fixedPitch());
}

TEST(QtPrompt, LongLinesAreWrappedPaddedOnesNever) {
    MessageBox box({.text = std::string(300, 'x')});
    EXPECT_TRUE(label(box).wordWrap());
    MessageBox padded({.text = std::string(20, ' ') + "x"});
    EXPECT_FALSE(label(padded).wordWrap());
}

TEST(QtPrompt, ButtonsGiveTheirAnswer) {
    QtPrompt prompt;
    whenOpen<MessageBox>([](MessageBox& box) { press(box, QStringLiteral("OK")); });
    EXPECT_EQ(prompt.show({.text = "x"}), Answer::Ok);
    whenOpen<MessageBox>([](MessageBox& box) { press(box, QStringLiteral("Yes")); });
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::YesNo}), Answer::Yes);
    whenOpen<MessageBox>([](MessageBox& box) { press(box, QStringLiteral("Cancel")); });
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::OkCancel}), Answer::Cancel);
}

TEST(QtPrompt, EscapeIsTheCautiousAnswer) {
    QtPrompt prompt;
    const auto escape = [](MessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    whenOpen<MessageBox>(escape);
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::YesNo}), Answer::No);
    whenOpen<MessageBox>(escape);
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::OkCancel}), Answer::Cancel);
    whenOpen<MessageBox>(escape);
    EXPECT_EQ(prompt.show({.text = "x"}), Answer::Ok);
}

TEST(QtPrompt, EnterTakesTheDefaultAnswer) {
    QtPrompt prompt;
    whenOpen<MessageBox>([](MessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::YesNo, .defaultAnswer = Answer::No}), Answer::No);
}

TEST(QtPrompt, TheDefaultAnswerHasTheFocusWhereverItStands) {
    QtPrompt prompt;
    // Enter goes to the button with the focus, which would be the first one.
    const auto enter = [](MessageBox& box) {
        auto* focused = dynamic_cast<QPushButton*>(box.focusWidget());
        EXPECT_TRUE(focused && focused->isDefault());
        if (focused)
            QTest::keyClick(focused, Qt::Key_Return);
        else
            box.reject();
    };
    whenOpen<MessageBox>(enter);
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::YesNo, .defaultAnswer = Answer::No}), Answer::No);
    whenOpen<MessageBox>(enter);
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::YesNo, .defaultAnswer = Answer::Yes}),
              Answer::Yes);
    whenOpen<MessageBox>(enter);
    EXPECT_EQ(prompt.show({.text = "x", .buttons = Buttons::OkCancel, .defaultAnswer = Answer::Cancel}),
              Answer::Cancel);
}

TEST(QtPrompt, InputIsPrefilledAndGivesTheText) {
    QtPrompt prompt;
    whenOpen<InputBox>([](InputBox& box) {
        auto* line = box.findChild<QLineEdit*>(QStringLiteral("InputText"));
        EXPECT_EQ(line->text(), QStringLiteral("1"));
        line->setText(QString::fromUtf8("Zoë"));
        press(box, QStringLiteral("OK"));
    });
    EXPECT_EQ(prompt.input({.text = "Enter\rit", .preset = "1"}), "Zoë");
    whenOpen<InputBox>([](InputBox& box) { press(box, QStringLiteral("Cancel")); });
    EXPECT_EQ(prompt.input({.text = "Enter", .preset = "1"}), std::nullopt);
}

TEST(QtPrompt, ChoicesMakeAnEditableList) {
    QtPrompt prompt;
    whenOpen<InputBox>([](InputBox& box) {
        auto* list = box.findChild<QComboBox*>();
        ASSERT_NE(list, nullptr);
        EXPECT_TRUE(list->isEditable());
        EXPECT_EQ(list->currentText(), QStringLiteral("0"));
        list->setCurrentIndex(1);
        press(box, QStringLiteral("OK"));
    });
    EXPECT_EQ(prompt.input({.text = "Volts", .preset = "0", .choices = {"4160", "13800"}}), "13800");
}

// The letters of a longer entry that was given earlier are not put behind what is typed.
TEST(QtPrompt, WhatIsTypedIsNotCompletedFromTheChoices) {
    QtPrompt prompt;
    whenOpen<InputBox>([](InputBox& box) {
        auto* line = box.findChild<QLineEdit*>(QStringLiteral("InputText"));
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("1380"));
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(prompt.input({.text = "Volts", .preset = "13800", .choices = {"13800", "4160"}}), "1380");
}

TEST(QtPrompt, FileDialogHasTheFilterAndStartsInTheFolder) {
    const QTemporaryDir folder;
    QFile(folder.filePath(QStringLiteral("a.dat"))).open(QIODevice::WriteOnly);
    QtPrompt prompt;
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters(),
                  QStringList({QStringLiteral("data files (*.dat)"), QStringLiteral("All files (*.*)")}));
        EXPECT_EQ(dialog.directory(), QDir(folder.path()));
        dialog.selectFile(QStringLiteral("a.dat"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(prompt.chooseFile({.filter = "data files (*.dat)|*.dat|All files (*.*)|*.*",
                                 .folder = folder.path().toStdString()}),
              folder.filePath(QStringLiteral("a.dat")).toStdString());
}

TEST(QtPrompt, SavedFileGetsTheExtensionOfItsFilter) {
    const QTemporaryDir folder;
    QtPrompt prompt;
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.selectFile(QStringLiteral("new"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(
        prompt.chooseFile(
            {.save = true, .filter = "chart files (*.chd) | *.chd", .folder = folder.path().toStdString()}),
        folder.filePath(QStringLiteral("new.chd")).toStdString());
}

TEST(QtPrompt, AQuestionKnowsNothingOfTheOneBefore) {
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    QtPrompt prompt;
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        dialog.selectFile(QStringLiteral("first.chd"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    prompt.chooseFile({.save = true, .filter = "chart files (*.chd)|*.chd", .folder = path});
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Open"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.nameFilters(), QStringList(QStringLiteral("data files (*.dat)")));
        EXPECT_EQ(dialog.defaultSuffix(), QString());
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QString());
        dialog.reject();
    });
    EXPECT_EQ(prompt.chooseFile({.filter = "data files (*.dat)|*.dat", .folder = path}), std::nullopt);
}

TEST(QtPrompt, FolderThatIsGoneMeansTheCurrentOne) {
    QtPrompt prompt;
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir::current());
        dialog.reject();
    });
    EXPECT_EQ(prompt.chooseFile({.filter = "x|*.dat", .folder = "/no/such"}), std::nullopt);
}

} // namespace
} // namespace tally
