// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY.h"
#include "app/forms/DataSelect.h"
#include "app/forms/QtPrompt.h"
#include "app/forms/Words.h"
#include "platform/Folders.h"
#include "platform/QtClock.h"
#include "platform/SafeFile.h"
#include "platform/UserSettings.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

namespace {

struct Arguments {
    std::vector<std::string> files;
    bool plot = false;
    bool quitAfterFirstFrame = false;
};

Arguments parse(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reads, keeps and plots the recordings of portable electrical load recorders."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption plot(QStringLiteral("plot"),
                                  QStringLiteral("Show the plot of the files instead of the summary."));
    QCommandLineOption measure(QStringLiteral("quit-after-first-frame"),
                               QStringLiteral("End when the window has been painted (for measuring)."));
    parser.addOptions({plot, measure});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Up to three data files to open."),
                                 QStringLiteral("[files...]"));
    parser.process(application);
    Arguments arguments;
    for (const QString& file : parser.positionalArguments())
        arguments.files.push_back(QFileInfo(file).absoluteFilePath().toStdString());
    arguments.plot = parser.isSet(plot);
    arguments.quitAfterFirstFrame = parser.isSet(measure);
    return arguments;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tallyline"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TALLY_VERSION));
    const Arguments arguments = parse(application);

    tally::SafeFile files;
    tally::UserSettings settings(files, tally::folders::settingsFile());
    tally::QtClock clock;
    tally::Recordings recordings;
    tally::DisplayState display;
    tally::QtPrompt prompt;
    tally::AppSlotChooser chooser(prompt);
    tally::TLY window({recordings, display, settings, files, clock, prompt, chooser});
    prompt.setWindow(&window);
    chooser.setWindow(&window);
    settings.onProblem([&window](const std::string& text) { window.reportSettings(text); });
    if (arguments.quitAfterFirstFrame)
        QObject::connect(&window, &tally::TLY::firstFrame, &application, &QCoreApplication::quit);
    window.show();
    if (!arguments.files.empty())
        QTimer::singleShot(0, &window, [&] { window.openFiles(arguments.files, arguments.plot); });
    return QApplication::exec();
}
