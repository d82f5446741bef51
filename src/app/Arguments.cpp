// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Arguments.h"

#include "platform/FilePath.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace tally {

namespace {

// Options that the toolkit takes for itself, so that no one else knows them.
const QStringList& toolkitOptions() {
    static const QStringList names =
        QStringLiteral("platform platformpluginpath platformtheme plugin qwindowgeometry qwindowicon "
                       "qwindowtitle session style stylesheet display geometry reverse widgetcount")
            .split(QLatin1Char(' '));
    return names;
}

struct Parser : QCommandLineParser {
    QCommandLineOption help = addHelpOption();
    QCommandLineOption version = addVersionOption();
    QCommandLineOption plot{QStringLiteral("plot"),
                            QStringLiteral("Show the plot of the files instead of the summary.")};
    QCommandLineOption measure{QStringLiteral("quit-after-first-frame"),
                               QStringLiteral("End when the window has been painted (for measuring).")};

    Parser() {
        setApplicationDescription(
            QStringLiteral("Reads, keeps and plots the recordings of portable electrical load recorders."));
        setSingleDashWordOptionMode(ParseAsLongOptions);
        addOptions({plot, measure});
        addPositionalArgument(QStringLiteral("files"), QStringLiteral("Up to three data files to open."),
                              QStringLiteral("[FILE [FILE [FILE]]]"));
    }
};

void onDisplayMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    // Which window systems were tried says nothing to whoever has none.
    const bool search = QByteArray(context.category).startsWith("qt.qpa");
    if (type == QtFatalMsg) {
        std::fputs("No display: Tallyline cannot open its window here. tallyline-cli needs none.\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
    if (!search)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

std::optional<int> endedByArguments(int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Parser parser;
    parser.parse(QCoreApplication::arguments());
    for (const QString& name : parser.unknownOptionNames()) {
        if (toolkitOptions().contains(name))
            continue;
        std::fprintf(
            stderr,
            "Unknown option: %s\nUsage: tallyline [--plot] [FILE [FILE [FILE]]]; see tallyline --help\n",
            qPrintable(name));
        return 2;
    }
    if (parser.isSet(parser.help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (parser.isSet(parser.version)) {
        std::printf("tallyline %s\n", qPrintable(QCoreApplication::applicationVersion()));
        return 0;
    }
    return std::nullopt;
}

Arguments readArguments(const QStringList& arguments, char** argv) {
    Parser parser;
    parser.parse(arguments);
    Arguments read;
    const QStringList files = parser.positionalArguments();
    for (qsizetype at = 1, next = 0; next < files.size(); ++at)
        if (arguments.at(at) == files.at(next)) {
            read.files.push_back(absolutePath(argv[at]));
            ++next;
        }
    read.plot = parser.isSet(parser.plot);
    read.quitAfterFirstFrame = parser.isSet(parser.measure);
    return read;
}

DisplayCheck::DisplayCheck() {
    qInstallMessageHandler(onDisplayMessage);
}

DisplayCheck::~DisplayCheck() {
    qInstallMessageHandler(nullptr);
}

} // namespace tally
