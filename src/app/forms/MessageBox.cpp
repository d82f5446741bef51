// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/MessageBox.h"

#include "core/forms/Words.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace tally {

namespace {

// Longer lines are wrapped; the padded texts are shorter.
constexpr qsizetype longestLine = 100;

bool isPadded(const QString& text) {
    static const QRegularExpression runs(QStringLiteral("\\S {3,}\\S|^ {3,}\\S| {3,}$"),
                                         QRegularExpression::MultilineOption);
    return text.contains(runs);
}

QLabel* textLabel(const QString& text, const QString& name, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    qsizetype longest = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        longest = std::max(longest, line.size());
    label->setWordWrap(longest > longestLine);
    if (longest > longestLine)
        label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 70);
    if (isPadded(text))
        label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return label;
}

struct Kind {
    Answer answer;
    QDialogButtonBox::StandardButton button;
};
constexpr Kind kinds[] = {{Answer::Ok, QDialogButtonBox::Ok},
                          {Answer::Cancel, QDialogButtonBox::Cancel},
                          {Answer::Yes, QDialogButtonBox::Yes},
                          {Answer::No, QDialogButtonBox::No}};

bool offers(Buttons buttons, Answer answer) {
    switch (buttons) {
    case Buttons::Ok:
        return answer == Answer::Ok;
    case Buttons::OkCancel:
        return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo:
        break;
    }
    return answer == Answer::Yes || answer == Answer::No;
}

Answer escapeAnswer(Buttons buttons) {
    if (buttons == Buttons::Ok)
        return Answer::Ok;
    return buttons == Buttons::OkCancel ? Answer::Cancel : Answer::No;
}

} // namespace

MessageBox::MessageBox(const Message& message, QWidget* parent)
    : QDialog(parent), answer_(escapeAnswer(message.buttons)) {
    setObjectName(QStringLiteral("MessageBox"));
    setWindowTitle(words(message.title));
    auto* down = new QVBoxLayout(this);
    auto* across = new QHBoxLayout;
    if (message.exclamation) {
        auto* icon = new QLabel(this);
        icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(32, 32));
        across->addWidget(icon, 0, Qt::AlignTop);
    }
    across->addWidget(textLabel(lines(message.text), QStringLiteral("MessageText"), this), 1);
    down->addLayout(across);
    addButtons(message, *down);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

// Under the dialog that it speaks of, as far as the screen goes: what that shows can be read meanwhile.
void MessageBox::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    const auto* about = qobject_cast<const QDialog*>(parentWidget());
    if (about == nullptr)
        return;
    const QRect beside = about->frameGeometry();
    const QRect room = about->screen()->availableGeometry();
    const int top = std::min(beside.bottom() + 1, room.bottom() + 1 - frameGeometry().height());
    move(beside.center().x() - frameGeometry().width() / 2, std::max(top, room.top()));
}

void MessageBox::addButtons(const Message& message, QLayout& layout) {
    auto* box = new QDialogButtonBox(this);
    for (const Kind& kind : kinds) {
        if (!offers(message.buttons, kind.answer))
            continue;
        QPushButton* button = box->addButton(kind.button);
        if (kind.answer == message.defaultAnswer || message.buttons == Buttons::Ok) {
            button->setDefault(true);
            // The focus would go to the first button, and Enter with it.
            button->setFocus();
        }
        connect(button, &QPushButton::clicked, this, [this, kind] {
            answer_ = kind.answer;
            accept();
        });
    }
    layout.addWidget(box);
}

InputBox::InputBox(const InputQuestion& question, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("InputBox"));
    setWindowTitle(words(question.title));
    auto* down = new QVBoxLayout(this);
    auto* label = textLabel(lines(question.text).trimmed(), QStringLiteral("InputPrompt"), this);
    down->addWidget(label);
    QLineEdit* line = nullptr;
    if (question.choices.empty()) {
        line = new QLineEdit(this);
        down->addWidget(line);
    } else {
        auto* list = new QComboBox(this);
        list->setEditable(true);
        list->setInsertPolicy(QComboBox::NoInsert);
        list->setCompleter(nullptr); // what was typed is what is meant
        for (const std::string& choice : question.choices)
            list->addItem(words(choice));
        down->addWidget(list);
        line = list->lineEdit();
        list->setAccessibleName(label->text());
    }
    line->setObjectName(QStringLiteral("InputText"));
    line->setAccessibleName(label->text());
    line->setText(words(question.preset));
    line->selectAll();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    down->addWidget(buttons);
    setMinimumWidth(360);
    line->setFocus();
}

QString InputBox::entered() const {
    return findChild<QLineEdit*>(QStringLiteral("InputText"))->text();
}

} // namespace tally
