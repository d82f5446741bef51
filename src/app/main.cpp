// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Arguments.h"
#include "app/TLY.h"
#include "app/forms/Access.h"
#include "app/forms/ChoosePaths.h"
#include "app/forms/DataSelect.h"
#include "app/forms/QtPrompt.h"
#include "app/forms/Splash.h"
#include "app/language/Speech.h"
#include "core/forms/Words.h"
#include "platform/FilePath.h"
#include "platform/Folders.h"
#include "platform/JournalFolder.h"
#include "platform/PatientFiles.h"
#include "platform/PortList.h"
#include "platform/QtClock.h"
#include "platform/QtWaiter.h"
#include "platform/SafeFile.h"
#include "platform/SerialLine.h"
#include "platform/SimulatedInstrument.h"
#include "platform/StandardStreams.h"
#include "platform/UserSettings.h"
#include "platform/archive/QtArchives.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <clocale>
#include <optional>

namespace {

// The serial line and what keeps what comes over it.
struct Link {
    Link(tally::SafeFile& files, const tally::Settings& settings, tally::Prompt& prompt)
        : line([this, &settings](int commPort) { return device(commPort, settings); }),
          waiter(line),
          journal(tally::folders::data() + "/journal", files),
          session{line, waiter, prompt, instrument, journal, gErrorCallPoint, [this] { waiter.cancel(); }} {}

    // The simulated instrument is started when its port is opened; it plays the chosen type.
    std::string device(int commPort, const tally::Settings& settings) {
        const std::string path =
            commPort == 0 ? instrument.devicePath : tally::devicePath(commPort, settings);
        constexpr int automatic = 11;
        const int type = instrument.instSelection;
        if (path == tally::simulatedInstrument())
            simulated.start(type < 1 || type == automatic ? instrument.instAutoCurrent : type);
        return path;
    }

    tally::InstrumentState instrument;
    tally::SimulatedInstrument simulated;
    tally::PortList ports;
    tally::SerialLine line;
    tally::QtWaiter waiter;
    tally::JournalFolder journal;
    int gErrorCallPoint = 0;
    tally::SessionServices session;
    tally::InstrumentPlaces places{ports, QDir::currentPath().toStdString(), tally::folders::recoverFile()};
};

} // namespace

int main(int argc, char** argv) {
    tally::holdStandardStreams();
    QCoreApplication::setApplicationName(QStringLiteral("tallyline"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TALLY_VERSION));
    if (const auto ended = tally::endedByArguments(argc, argv))
        return *ended;
    auto check = std::make_optional<tally::DisplayCheck>();
    QApplication application(argc, argv);
    // The toolkit has taken the user's locale; what a server says is understood in English.
    std::setlocale(LC_MESSAGES, "C");
    check.reset();
    tally::easeAccess(application);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tallyline.png")));
    const tally::Arguments arguments = tally::readArguments(QCoreApplication::arguments(), argv);

    tally::SafeFile disk;
    tally::PatientFiles files(disk);
    tally::UserSettings settings(files, tally::folders::settingsFile());
    const tally::Speech speech(application, tally::languageInForce(settings, QLocale::system()));
    tally::Splash splash;
    if (tally::Splash::wanted())
        splash.show();
    tally::QtClock clock;
    tally::Recordings recordings;
    tally::Display display;
    tally::QtPrompt prompt;
    tally::AppSlotChooser chooser(prompt);
    Link link(disk, settings, prompt);
    const tally::QtArchives archives;
    tally::SafeFile archiveFiles;
    const tally::ArchiveServices archive{archives, archiveFiles, tally::chooseFolder, tally::chooseDataFiles};
    tally::TLY window(
        {recordings, display, settings, files, clock, prompt, chooser, link.session, link.places, &archive});
    prompt.setWindow(&window);
    chooser.setWindow(&window);
    settings.onProblem([&window](const std::string& text) { window.reportSettings(text); });
    // It is told in the middle of a session.
    link.journal.onProblem([&window](const std::string&) {
        QMetaObject::invokeMethod(&window, &tally::TLY::journalChanged, Qt::QueuedConnection);
    });
    QObject::connect(&window, &tally::TLY::firstFrame, &splash, &QWidget::close);
    window.show();
    QTimer::singleShot(0, &window, [&] {
        if (!arguments.files.empty())
            window.openFiles(arguments.files, arguments.plot);
        if (arguments.quitAfterFirstFrame) {
            window.repaint();
            QCoreApplication::quit();
        }
    });
    return QApplication::exec();
}
