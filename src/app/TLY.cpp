// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY.h"

#include "app/FolderChoice.h"
#include "app/Menus.h"
#include "app/NoticeBar.h"
#include "app/Screen.h"
#include "app/StatusPanels.h"
#include "app/TLY_Downloads.h"
#include "app/TLY_Edit.h"
#include "app/TLY_Export.h"
#include "app/TLY_File.h"
#include "app/TLY_Help.h"
#include "app/TLY_Instrument.h"
#include "app/TLY_Options.h"
#include "app/TLY_Paper.h"
#include "app/TLY_Power.h"
#include "app/TLY_Survey.h"
#include "app/TLY_View.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

namespace tally {

TLY::TLY(const Services& services, QWidget* parent)
    : QMainWindow(parent),
      services_(services),
      dispatcher_(services.recordings, services.display, services.prompt) {
    setObjectName(QStringLiteral("TLY"));
    setAcceptDrops(true);
    menus_ = new Menus(*menuBar(), this);
    layOut();
    file_ = std::make_unique<TLY_File>(*this);
    view_ = std::make_unique<TLY_View>(*this);
    power_ = std::make_unique<TLY_Power>(*this);
    edit_ = std::make_unique<TLY_Edit>(*this);
    paper_ = std::make_unique<TLY_Paper>(*this);
    export_ = std::make_unique<TLY_Export>(*this);
    downloads_ = std::make_unique<TLY_Downloads>(*this);
    instrument_ = std::make_unique<TLY_Instrument>(*this);
    survey_ = std::make_unique<TLY_Survey>(*this);
    options_ = std::make_unique<TLY_Options>(*this);
    help_ = std::make_unique<TLY_Help>(*this);
    connectMenus();
    addShortcuts();
    connectStartPage();
    menus_->apply(MenuEvent::startUp);
    file_->showMru();
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
void TLY::command(const std::function<void()>& handler) {
    statusBar()->clearMessage();
    dispatcher_.run(handler);
}

void TLY::connectMenus() {
    const auto on = [this](std::string_view name, auto& group, auto handler) {
        menus_->handle(name, [this, &group, handler] { command([&] { (group.*handler)(); }); });
    };
    on("mnuItemOpen", *file_, &TLY_File::mnuItemOpen_Click);
    on("mnuItemClose", *file_, &TLY_File::mnuItemClose_Click);
    on("mnuItemSave", *file_, &TLY_File::mnuItemSave_Click);
    on("mnuItemImport", *file_, &TLY_File::mnuItemImport_Click);
    menus_->handle("mnuItemExit", [this] { file_->mnuItemExit_Click(); });
    menus_->handleMru([this](int index) { command([&] { file_->mnuMRU_Click(index); }); });
    on("mnuitemexprep", *export_, &TLY_Export::mnuitemexprep_Click);
    on("MnuItemexpdatacsv", *export_, &TLY_Export::MnuItemexpdatacsv_Click);
    on("mnuItemexpdata1perLine", *export_, &TLY_Export::mnuItemexpdata1perLine_Click);
    on("mnuItemPrintSum", *paper_, &TLY_Paper::mnuItemPrintSum_Click);
    on("mnuItemPrintpwrSum", *paper_, &TLY_Paper::mnuItemPrintpwrSum_Click);
    on("mnuItemPrintTable", *paper_, &TLY_Paper::mnuItemPrintTable_Click);
    on("mnuItemPrintPwrTable", *paper_, &TLY_Paper::mnuItemPrintPwrTable_Click);
    on("mnuItemNotes", *edit_, &TLY_Edit::mnuItemNotes_Click);
    on("mnuItemForceRdg", *edit_, &TLY_Edit::mnuItemForceRdg_Click);
    on("mnuItemadd", *edit_, &TLY_Edit::mnuItemadd_Click);
    on("mnuItemClearNote", *edit_, &TLY_Edit::mnuItemClearNote_Click);
    connectMoreMenus();
}

void TLY::connectMoreMenus() {
    const auto on = [this](std::string_view name, auto& group, auto handler) {
        menus_->handle(name, [this, &group, handler] { command([&] { (group.*handler)(); }); });
    };
    on("mnuItemViewPlot", *view_, &TLY_View::mnuItemViewPlot_Click);
    on("mnuItemViewTable", *view_, &TLY_View::mnuItemViewTable_Click);
    on("mnuItemRefresh", *view_, &TLY_View::mnuItemRefresh_Click);
    on("mnuItemViewsummary", *view_, &TLY_View::mnuItemViewsummary_Click);
    on("mnuZoom", *view_, &TLY_View::mnuZoom_Click);
    on("mnuItemScale", *view_, &TLY_View::mnuItemScale_Click);
    on("mnuItemOnepgPlot", *view_, &TLY_View::mnuItemOnepgPlot_Click);
    on("mnuItemViewPower", *power_, &TLY_Power::mnuItemViewPower_Click);
    on("mnuItemViewPwrTable", *power_, &TLY_Power::mnuItemViewPwrTable_Click);
    on("mnuItemViewpwrsummry", *power_, &TLY_Power::mnuItemViewpwrsummry_Click);
    on("mnuItemPF", *power_, &TLY_Power::mnuItemPF_Click);
    on("mnuItemDownload", *instrument_, &TLY_Instrument::mnuItemDownload_Click);
    on("mnuItemInitialize", *instrument_, &TLY_Instrument::mnuItemInitialize_Click);
    on("mnuItemRecover", *instrument_, &TLY_Instrument::mnuItemRecover_Click);
    on("mnuItemStatusCheck", *instrument_, &TLY_Instrument::mnuItemStatusCheck_Click);
    on("mnuItemPortSelect", *instrument_, &TLY_Instrument::mnuItemPortSelect_Click);
    on("mnuItemInstSelect", *instrument_, &TLY_Instrument::mnuItemInstSelect_Click);
    on("mnuitemsurvfil", *survey_, &TLY_Survey::mnuitemsurvfil_Click);
    on("SpecialTest", *options_, &TLY_Options::SpecialTest_Click);
    on("mnuItemDefaultDir", *options_, &TLY_Options::mnuItemDefaultDir_Click);
    on("mnuItemUserID", *options_, &TLY_Options::mnuItemUserID_Click);
    on("mnuItemHelp", *help_, &TLY_Help::mnuItemHelp_Click);
    on("mnuItemAbout", *help_, &TLY_Help::mnuItemAbout_Click);
}

} // namespace tally
