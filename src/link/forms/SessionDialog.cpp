// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/SessionDialog.h"

#include "core/forms/Words.h"
#include "link/forms/DialogText.h"

#include <QEventLoop>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tally {

namespace {

constexpr int progressMaximum = 20000;
constexpr int charactersWide = 90;
constexpr int linesHigh = 30; // leaves room for a message box below what it is about
constexpr int logLines = 7;
constexpr int hintLines = 2;      // kept free, so that nothing moves when it comes
constexpr double largeText = 1.2; // read at arm's length, in a truck

void enlarge(QLabel& label) {
    QFont font = label.font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * largeText);
    label.setFont(font);
}

} // namespace

SessionDialog::SessionDialog(const SessionServices& services, const QString& name, const QString& title,
                             QWidget* parent)
    : QDialog(parent), services_(services), down_(new QVBoxLayout(this)) {
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
    setMinimumWidth(fontMetrics().averageCharWidth() * charactersWide);
}

Session SessionDialog::session() {
    return {services_, *this};
}

QLabel* SessionDialog::addText(const QString& name) {
    QLabel* label = namedLabel(name);
    label->setWordWrap(true);
    enlarge(*label);
    down_->addWidget(label);
    return label;
}

QLabel* SessionDialog::addFixedText(const QString& name, int columns) {
    QLabel* label = namedLabel(name, true);
    enlarge(*label);
    setMinimumWidth(label->fontMetrics().horizontalAdvance(QLatin1Char('m')) * columns);
    down_->addWidget(label, 0, Qt::AlignHCenter);
    return label;
}

void SessionDialog::addWidget(QWidget* widget) {
    down_->addWidget(widget);
}

void SessionDialog::addProgressBar() {
    bar_ = new QProgressBar;
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setAccessibleName(tr("Progress"));
    bar_->setRange(0, progressMaximum);
    bar_->setTextVisible(false); // it starts anew when it is full
    QSizePolicy policy = bar_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar_->setSizePolicy(policy);
    bar_->hide();
    down_->addWidget(bar_);
}

void SessionDialog::addLog() {
    log_ = namedLabel(QStringLiteral("Label3"));
    log_->setText(QStringLiteral("Debugging log:\n"));
    log_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    log_->setMargin(4);
    auto* area = new QScrollArea;
    area->setWidget(log_);
    area->setAccessibleName(QStringLiteral("Debugging log"));
    area->setWidgetResizable(true);
    // The last line stays in sight.
    QScrollBar* scroll = area->verticalScrollBar();
    connect(scroll, &QScrollBar::rangeChanged, scroll, [scroll](int, int end) { scroll->setValue(end); });
    area->setFixedHeight(log_->fontMetrics().lineSpacing() * logLines);
    down_->addStretch(1);
    down_->addWidget(area);
    setMinimumHeight(log_->fontMetrics().lineSpacing() * linesHigh);
}

void SessionDialog::addHint() {
    hint_ = addText(QStringLiteral("HintLabel"));
    hint_->setMinimumHeight(hint_->fontMetrics().lineSpacing() * hintLines);
    hint_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    hint_->setAccessibleName(tr("What to check"));
}

void SessionDialog::hint(const std::string& text) {
    if (hint_)
        hint_->setText(lines(text));
}

QHBoxLayout& SessionDialog::buttonRow() {
    if (!buttons_) {
        buttons_ = new QHBoxLayout;
        buttons_->addStretch(1);
        down_->addLayout(buttons_);
    }
    return *buttons_;
}

void SessionDialog::addOk() {
    ok_ = new QPushButton(QStringLiteral("OK"));
    ok_->setObjectName(QStringLiteral("OK"));
    ok_->setDefault(true);
    connect(ok_, &QPushButton::clicked, this, [this] {
        okPressed_ = true;
        if (waiting_)
            waiting_->quit();
    });
    buttonRow().addWidget(ok_);
}

void SessionDialog::addCancel(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &SessionDialog::reject);
    buttonRow().addWidget(button);
}

bool SessionDialog::waitForOk() {
    show();
    QEventLoop loop;
    waiting_ = &loop;
    loop.exec();
    waiting_ = nullptr;
    return okPressed_;
}

void SessionDialog::start() {
    running_ = true;
    if (ok_)
        ok_->hide();
    show();
}

void SessionDialog::reject() {
    if (running_) {
        services_.requestCancel();
        return;
    }
    if (waiting_)
        waiting_->quit();
    QDialog::reject();
}

void SessionDialog::appendLog(const std::string& text) {
    log_->setText(log_->text() + lines(text));
}

void SessionDialog::progressVisible(bool visible) {
    if (bar_)
        bar_->setVisible(visible);
}

void SessionDialog::progress(int value) {
    if (bar_)
        bar_->setValue(value);
}

void SessionDialog::busy(bool busy) {
    if (!parentWidget())
        return;
    if (busy)
        parentWidget()->setCursor(Qt::WaitCursor);
    else
        parentWidget()->unsetCursor();
}

void SessionDialog::mainStatus(const std::string& text) {
    services_.mainStatus(text);
}

} // namespace tally
