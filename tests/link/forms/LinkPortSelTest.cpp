// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/PortSel.h"

#include "link/forms/LinkSupport.h"
#include "support/MemorySettings.h"

#include <QGroupBox>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace tally {
namespace {

using namespace testing;

class Catalogue : public PortCatalogue {
public:
    std::vector<PortDevice> devices() const override {
        return {{"/dev/serial/by-id/usb-a", "Adapter A & B"}, {"/tmp/sim", "simulated instrument", true}};
    }
    PortPresence presence(const std::string& path) const override {
        if (path == defaultDevice(2))
            return PortPresence::inUse;
        if (path == defaultDevice(3))
            return PortPresence::noPermission;
        return path == defaultDevice(1) || path == "/tmp/sim" ? PortPresence::free : PortPresence::notThere;
    }
};

class PortSelForm : public ::testing::Test {
protected:
    MemorySettings settings;
    Catalogue catalogue;
    SessionBench bench{7};

    void assign(PortSel& form, const char* menuName, int entry) {
        auto* menu = named<QMenu>(form, menuName);
        Q_EMIT menu->aboutToShow();
        menu->actions().at(entry)->trigger();
    }
    void run(std::function<void(QDialog&)> answer) {
        soon([answer] {
            if (QDialog* dialog = shownDialog("PortSel"))
                answer(*dialog);
        });
        runPortSel(nullptr, bench.instrument, bench.line, settings, bench.prompt, catalogue);
    }
};

TEST_F(PortSelForm, HasEightOptionsInAFrameWithTheirCaptions) {
    const PortSel form(1, catalogue, settings, nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Com Port Selection"));
    EXPECT_EQ(named<QGroupBox>(form, "Frame1")->title(), QStringLiteral("ComPort"));
    const char* const captions[] = {"Com1", "Com2", "Com3", "Com4", "Com5", "Com6", "Com7", "com8"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(form.findChild<QRadioButton*>(QStringLiteral("Option%1").arg(i + 1))->text(),
                  QString::fromLatin1(captions[i]));
    EXPECT_EQ(named(form, "OK")->text(), QStringLiteral("OK"));
    EXPECT_EQ(named(form, "CancelButton")->text(), QStringLiteral("Cancel"));
}

TEST_F(PortSelForm, ThePortInForceIsChecked) {
    const PortSel form(6, catalogue, settings, nullptr);
    EXPECT_TRUE(named(form, "Option6")->isChecked());
    EXPECT_EQ(form.checked(), 6);
}

TEST_F(PortSelForm, ShowsWhatIsBehindEachPort) {
    const PortSel form(1, catalogue, settings, nullptr);
    EXPECT_EQ(labelText(form, "Device1"), defaultDevice(1) + ": free");
    EXPECT_EQ(labelText(form, "Device2"), defaultDevice(2) + ": in use by another program");
    EXPECT_EQ(labelText(form, "Device3"),
              defaultDevice(3) + ": no permission: add yourself to group dialout and log in again");
    EXPECT_EQ(labelText(form, "Device4"), defaultDevice(4) + ": not there");
    EXPECT_EQ(named(form, "Option4")->accessibleDescription().toStdString(),
              defaultDevice(4) + ": not there");
}

TEST_F(PortSelForm, AListedDeviceIsAssignedByItsButtonAndChecked) {
    PortSel form(1, catalogue, settings, nullptr);
    assign(form, "Devices5", 2);
    EXPECT_EQ(labelText(form, "Device5"), "simulated instrument: free");
    EXPECT_EQ(devicePath(5, settings), "/tmp/sim");
    EXPECT_EQ(form.checked(), 5);
}

TEST_F(PortSelForm, ALineSaysThatAssignLeadsToTheSimulatedInstrumentToo) {
    const PortSel form(1, catalogue, settings, nullptr);
    EXPECT_EQ(labelText(form, "Hint"),
              "Assign puts another device behind a port: an adapter, or the simulated instrument.");
}

TEST_F(PortSelForm, TheMenuOffersTheUsualDeviceAndTheListedOnes) {
    PortSel form(1, catalogue, settings, nullptr);
    auto* menu = named<QMenu>(form, "Devices2");
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_EQ(menu->actions()[0]->text().toStdString(), defaultDevice(2) + " (the usual one)");
    EXPECT_TRUE(menu->actions()[0]->isChecked());
    EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("/dev/serial/by-id/usb-a (Adapter A && B)"));
    EXPECT_EQ(menu->actions()[2]->text(), QStringLiteral("simulated instrument"));
    EXPECT_FALSE(named(form, "Assign2")->accessibleName().isEmpty());
}

TEST_F(PortSelForm, CancelTakesAssignmentsBack) {
    assignDevice(5, "/dev/before", settings);
    PortSel form(1, catalogue, settings, nullptr);
    assign(form, "Devices5", 2);
    assign(form, "Devices6", 1);
    click(form, "CancelButton");
    EXPECT_EQ(devicePath(5, settings), "/dev/before");
    EXPECT_EQ(devicePath(6, settings), defaultDevice(6));
}

TEST_F(PortSelForm, OkTriesAndStoresTheCheckedPort) {
    run([](QDialog& form) {
        click(form, "Option8");
        click(form, "OK");
    });
    EXPECT_EQ(bench.instrument.gCommPort, 8);
    EXPECT_EQ((settings.values[{"Comm", "TLY.MSComm1.CommPort"}]), "8");
    EXPECT_EQ(bench.line.count("CommPort 8"), 1);
}

TEST_F(PortSelForm, ABadPortIsToldAfterTheDialogHasClosed) {
    settings.values[{"Comm", "TLY.MSComm1.CommPort"}] = "2";
    bench.line.failOpen = Fault(8002, "Invalid port number");
    bool open = true;
    bench.prompt.onMessage = [&](const Message&) { open = QApplication::activeModalWidget() != nullptr; };
    run([](QDialog& form) {
        click(form, "Option4");
        click(form, "OK");
    });
    EXPECT_EQ(bench.prompt.texts(), std::vector<std::string>{"Invalid Port"});
    EXPECT_FALSE(open);
    EXPECT_EQ(bench.instrument.gCommPort, 2);
}

TEST_F(PortSelForm, CancelAndEscapeTryNothing) {
    run([](QDialog& form) {
        click(form, "Option4");
        click(form, "CancelButton");
    });
    run([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_TRUE(bench.line.calls.empty());
    EXPECT_EQ(bench.instrument.gCommPort, 1);
}

} // namespace
} // namespace tally
