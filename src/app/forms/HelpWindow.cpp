// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/HelpWindow.h"

#include "platform/Folders.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QSplitter>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

namespace tally {

namespace {

// Pages name pictures and style as they lie in the source tree, above the pages of a language; a help file
// holds all in one folder.
QUrl inHelpFile(QUrl url) {
    if (!url.path().startsWith(QStringLiteral("/doc/")))
        url.setPath(QStringLiteral("/doc") + url.path());
    return url;
}

// Pages come out of the help file.
class Pages : public QTextBrowser {
public:
    Pages(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {
        setOpenLinks(false);
    }

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (name.scheme() == QStringLiteral("qthelp"))
            return engine_.fileData(inHelpFile(name));
        return QTextBrowser::loadResource(type, name);
    }

private:
    QHelpEngine& engine_;
};

bool registerFile(QHelpEngine& engine, const QString& helpFile, const QString& nameSpace) {
    const QString known = engine.documentationFileName(nameSpace);
    if (!known.isEmpty() && QFileInfo(known) == QFileInfo(helpFile))
        return true;
    if (!known.isEmpty())
        engine.unregisterDocumentation(nameSpace);
    return engine.registerDocumentation(helpFile);
}

// Qt keeps what it knows of a help file in a collection. Null when the folder takes none.
std::unique_ptr<QHelpEngine> openCollection(const QString& folder, const QString& helpFile,
                                            const QString& nameSpace) {
    auto engine = std::make_unique<QHelpEngine>(folder + QStringLiteral("/help.qhc"));
    engine->setReadOnly(false);
    engine->setUsesFilterEngine(true);
    if (!engine->setupData() || !registerFile(*engine, helpFile, nameSpace))
        return nullptr;
    return engine;
}

} // namespace

std::unique_ptr<HelpWindow> HelpWindow::make(const QString& helpFile, QString* why) {
    if (!QFileInfo(helpFile).isFile()) {
        *why = QStringLiteral("The help file is missing:\n") + QDir::toNativeSeparators(helpFile);
        return nullptr;
    }
    const QString nameSpace = QHelpEngineCore::namespaceName(helpFile);
    // In the per-user folder; where that cannot be written to, or another Tallyline is just making it, in one
    // of its own.
    const QString folder = QString::fromStdString(folders::data());
    QDir().mkpath(folder);
    std::unique_ptr<QTemporaryDir> own;
    auto engine = nameSpace.isEmpty() ? nullptr : openCollection(folder, helpFile, nameSpace);
    if (!engine && !nameSpace.isEmpty()) {
        own = std::make_unique<QTemporaryDir>();
        engine = openCollection(own->path(), helpFile, nameSpace);
    }
    if (!engine) {
        *why = nameSpace.isEmpty() ? QStringLiteral("The help file is damaged:\n")
                                   : QStringLiteral("The help file cannot be opened:\n");
        *why += QDir::toNativeSeparators(helpFile);
        return nullptr;
    }
    return std::unique_ptr<HelpWindow>(new HelpWindow(std::move(own), std::move(engine), nameSpace));
}

HelpWindow::HelpWindow(std::unique_ptr<QTemporaryDir> own, std::unique_ptr<QHelpEngine> engine,
                       const QString& nameSpace)
    : own_(std::move(own)),
      engine_(std::move(engine)),
      nameSpace_(nameSpace),
      pages_(new Pages(*engine_, this)) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(QStringLiteral("Tallyline Help"));
    pages_->setObjectName(QStringLiteral("HelpPages"));
    auto* side = new QTabWidget(this);
    addContents(*side);
    addSearch(*side);
    auto* split = new QSplitter(this);
    split->addWidget(side);
    split->addWidget(pages_);
    split->setStretchFactor(1, 1);
    split->setSizes({240, 560});
    setCentralWidget(split);
    addButtons();
    connect(pages_, &QTextBrowser::anchorClicked, this, &HelpWindow::go);
    resize(860, 600);
}

HelpWindow::~HelpWindow() {
    // The pages and the side read from the engine, which goes first among the members.
    delete centralWidget();
}

void HelpWindow::addContents(QTabWidget& side) {
    QHelpContentWidget* contents = engine_->contentWidget();
    side.addTab(contents, QStringLiteral("Contents"));
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpWindow::go);
    connect(contents, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { go(engine_->contentModel()->contentItemAt(index)->url()); });
    connect(engine_->contentModel(), &QHelpContentModel::contentsCreated, contents,
            [contents] { contents->expandToDepth(1); });
}

void HelpWindow::addSearch(QTabWidget& side) {
    QHelpSearchEngine* search = engine_->searchEngine();
    auto* page = new QWidget(&side);
    auto* down = new QVBoxLayout(page);
    down->addWidget(search->queryWidget());
    down->addWidget(search->resultWidget(), 1);
    side.addTab(page, QStringLiteral("Search"));
    connect(search->queryWidget(), &QHelpSearchQueryWidget::search, this,
            [search] { search->search(search->queryWidget()->searchInput()); });
    connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, this, &HelpWindow::go);
}

void HelpWindow::addButtons() {
    auto* bar = addToolBar(QStringLiteral("Pages"));
    bar->setObjectName(QStringLiteral("HelpToolBar"));
    bar->setMovable(false);
    QAction* back = bar->addAction(QStringLiteral("Back"), pages_, &QTextBrowser::backward);
    QAction* forward = bar->addAction(QStringLiteral("Forward"), pages_, &QTextBrowser::forward);
    bar->addAction(QStringLiteral("Contents"), this, [this] { showPage(); });
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(pages_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(pages_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void HelpWindow::showPage(const QString& page) {
    const QString file = page.isEmpty() ? QStringLiteral("index.html") : page;
    go(QUrl(QStringLiteral("qthelp://") + nameSpace_ + QStringLiteral("/doc/") + file));
}

void HelpWindow::go(const QUrl& url) {
    if (url.scheme() == QStringLiteral("qthelp") || url.isRelative())
        pages_->setSource(pages_->source().resolved(url));
    else
        QDesktopServices::openUrl(url);
}

bool WinHelpA(QWidget& window, const QString& helpFile, QString* why, const QString& page) {
    // A top-level window of its own that ends with the main window.
    auto* viewer = window.findChild<HelpWindow*>();
    if (!viewer) {
        auto made = HelpWindow::make(helpFile, why);
        if (!made)
            return false;
        viewer = made.release();
        viewer->setParent(&window, Qt::Window);
        viewer->showPage(page);
    } else if (!page.isEmpty()) {
        viewer->showPage(page);
    }
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
    return true;
}

} // namespace tally
