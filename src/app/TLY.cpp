// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY.h"

#include "app/Commands.h"
#include "app/Menus.h"
#include "app/Screen.h"
#include "app/forms/FolderChoice.h"
#include "app/forms/NoticeBar.h"
#include "app/forms/StatusPanels.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include <map>

namespace tally {

TLY::TLY(const Services& services, QWidget* parent)
    : QMainWindow(parent),
      services_(services),
      dispatcher_(services.recordings, services.display, services.prompt, services.session.gErrorCallPoint) {
    setObjectName(QStringLiteral("TLY"));
    setAcceptDrops(true);
    menus_ = new Menus(*menuBar(), this);
    layOut();
    const Panes panes{
        *this, *menus_, *screen_, *notices_, *status_, *folderChoice_, [this] { updateTitle(); }};
    commands_ = std::make_unique<Commands>(services_, dispatcher_, panes);
    connectMenus();
    connectMoreMenus();
    connectTexts();
    addShortcuts();
    connectStartPage();
    connect(screen_, &Screen::changed, this, &TLY::updateTitle);
    menus_->apply(MenuEvent::startUp);
    commands_->file.showMru();
    updateTitle();
    placeWindow();
}

TLY::~TLY() = default;

void TLY::layOut() {
    notices_ = new NoticeBar(this);
    folderChoice_ = new FolderChoice(this);
    screen_ = new Screen(this);
    auto* middle = new QWidget(this);
    auto* down = new QVBoxLayout(middle);
    down->setContentsMargins(0, 0, 0, 0);
    down->setSpacing(0);
    down->addWidget(notices_);
    down->addWidget(folderChoice_);
    down->addWidget(screen_, 1);
    setCentralWidget(middle);
    status_ = std::make_unique<StatusPanels>(*statusBar());
}

// The word about a menu item goes when the item has been chosen.
template <class Handler>
std::function<void()> TLY::command(Handler handler) {
    return [this, handler] {
        statusBar()->clearMessage();
        status_->forget();
        dispatcher_.run(handler);
    };
}

void TLY::connectMenus() {
    const auto on = [this](std::string_view name, auto& group, auto handler) {
        menus_->handle(name, command([&group, handler] { return (group.*handler)(); }));
    };
    Commands& c = *commands_;
    on("mnuItemOpen", c.file, &TLY_File::mnuItemOpen_Click);
    on("mnuItemClose", c.file, &TLY_File::mnuItemClose_Click);
    on("mnuItemSave", c.file, &TLY_File::mnuItemSave_Click);
    on("mnuItemImport", c.chart, &TLY_Chart::mnuItemImport_Click);
    menus_->handle("mnuItemExit", [this] { close(); });
    menus_->handleMru(
        [this](int index) { command([this, index] { return commands_->file.mnuMRU_Click(index); })(); });
    on("mnuitemexprep", c.exports, &TLY_Export::mnuitemexprep_Click);
    on("MnuItemexpdatacsv", c.exports, &TLY_Export::MnuItemexpdatacsv_Click);
    on("mnuItemexpdata1perLine", c.exports, &TLY_Export::mnuItemexpdata1perLine_Click);
    on("mnuItemExportReadings", c.exports, &TLY_Export::mnuItemExportReadings_Click);
    on("mnuItemPrintSum", c.paper, &TLY_Paper::mnuItemPrintSum_Click);
    on("mnuItemPrintpwrSum", c.paper, &TLY_Paper::mnuItemPrintpwrSum_Click);
    on("mnuItemPrintTable", c.paper, &TLY_Paper::mnuItemPrintTable_Click);
    on("mnuItemPrintPwrTable", c.paper, &TLY_Paper::mnuItemPrintPwrTable_Click);
    on("mnuItemNotes", c.edit, &TLY_Edit::mnuItemNotes_Click);
    on("mnuItemForceRdg", c.edit, &TLY_Edit::mnuItemForceRdg_Click);
    on("mnuItemadd", c.chart, &TLY_Chart::mnuItemadd_Click);
    on("mnuItemClearNote", c.chart, &TLY_Chart::mnuItemClearNote_Click);
    on("mnuitemsurvfil", c.survey, &TLY_Survey::mnuitemsurvfil_Click);
}

void TLY::connectMoreMenus() {
    const auto on = [this](std::string_view name, auto& group, auto handler) {
        menus_->handle(name, command([&group, handler] { return (group.*handler)(); }));
    };
    Commands& c = *commands_;
    on("mnuItemViewPlot", c.view, &TLY_View::mnuItemViewPlot_Click);
    on("mnuItemViewTable", c.view, &TLY_View::mnuItemViewTable_Click);
    on("mnuItemRefresh", c.view, &TLY_View::mnuItemRefresh_Click);
    on("mnuItemViewsummary", c.view, &TLY_View::mnuItemViewsummary_Click);
    on("mnuZoom", c.view, &TLY_View::mnuZoom_Click);
    on("mnuItemScale", c.view, &TLY_View::mnuItemScale_Click);
    on("mnuItemOnepgPlot", c.view, &TLY_View::mnuItemOnepgPlot_Click);
    on("mnuItemViewPower", c.power, &TLY_Power::mnuItemViewPower_Click);
    on("mnuItemViewPwrTable", c.power, &TLY_Power::mnuItemViewPwrTable_Click);
    on("mnuItemViewpwrsummry", c.power, &TLY_Power::mnuItemViewpwrsummry_Click);
    on("mnuItemPF", c.power, &TLY_Power::mnuItemPF_Click);
    on("mnuItemViewStudy", c.study, &TLY_Study::mnuItemViewStudy_Click);
    on("mnuItemDownload", c.instrument, &TLY_Instrument::mnuItemDownload_Click);
    on("mnuItemInitialize", c.instrument, &TLY_Instrument::mnuItemInitialize_Click);
    on("mnuItemRecover", c.instrument, &TLY_Instrument::mnuItemRecover_Click);
    on("mnuItemStatusCheck", c.instrument, &TLY_Instrument::mnuItemStatusCheck_Click);
    on("mnuItemFind", c.instrument, &TLY_Instrument::mnuItemFind_Click);
    on("mnuItemPortSelect", c.instrument, &TLY_Instrument::mnuItemPortSelect_Click);
    on("mnuItemInstSelect", c.instrument, &TLY_Instrument::mnuItemInstSelect_Click);
    c.navigate.connectMenus(
        [this](const std::function<Done()>& step) { command([step] { return step(); })(); });
    on("SpecialTest", c.options, &TLY_Options::SpecialTest_Click);
    on("mnuItemDefaultDir", c.options, &TLY_Options::mnuItemDefaultDir_Click);
    on("mnuItemUserID", c.options, &TLY_Options::mnuItemUserID_Click);
    if (services_.archive)
        on("mnuItemArchive", c.archive, &TLY_Archive::mnuItemArchive_Click);
    on("mnuItemHelp", c.help, &TLY_Help::mnuItemHelp_Click);
    on("mnuItemAbout", c.help, &TLY_Help::mnuItemAbout_Click);
}

// The buttons of the texts, and the one that leaves the zoom.
void TLY::connectTexts() {
    Commands& c = *commands_;
    connect(screen_, &Screen::printText, this, command([&c] { c.printing.printShown(); }));
    connect(screen_, &Screen::previewText, this, command([&c] { c.printing.previewShown(); }));
    connect(screen_, &Screen::viewWanted, this, [this](const QString& view) {
        const std::map<QString, const char*> items = {{QStringLiteral("Plot"), "mnuItemViewPlot"},
                                                      {QStringLiteral("Table"), "mnuItemViewTable"},
                                                      {QStringLiteral("Summary"), "mnuItemViewsummary"},
                                                      {QStringLiteral("Power"), "mnuItemViewPower"},
                                                      {QStringLiteral("Study"), "mnuItemViewStudy"}};
        menus_->item(items.at(view)).trigger();
    });
    connect(screen_, &Screen::showAllWanted, this, [this] { menus_->item("mnuItemShowAll").trigger(); });
}

} // namespace tally
