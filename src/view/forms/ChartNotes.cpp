// SPDX-License-Identifier: GPL-3.0-or-later
// The notes on the chart: placing, dragging, editing, removing.
#include "view/forms/Chart.h"
#include "view/forms/NotePaint.h"
#include "view/forms/PlotScene.h"

#include <QKeyEvent>
#include <QPlainTextEdit>

#include <algorithm>
#include <map>

namespace tally {
namespace {

constexpr double keyStep = 0.01; // of the frame, for the arrows

} // namespace

const std::vector<ChartNote>& Chart::notes() const {
    return scene_->notes;
}

void Chart::setNotes(std::vector<ChartNote> notes) {
    endEdit(false);
    scene_->notes = std::move(notes);
    selectNote(-1);
    Q_EMIT notesChanged();
}

void Chart::addNote(const std::string& text) {
    if (text.empty())
        return;
    endEdit(true);
    const double down = double(scene_->notes.size() % 10) * 0.08;
    scene_->notes.push_back({0.03, 0.05 + down, text});
    selectNote(int(scene_->notes.size()) - 1);
    Q_EMIT notesChanged();
}

void Chart::clearNotes() {
    setNotes({});
}

void Chart::selectNote(int index) {
    scene_->selectedNote = index;
    refresh();
}

// Selects the uppermost note at a place, or none.
void Chart::pressNote(const QPointF& place) {
    const auto& all = scene_->notes;
    int found = int(all.size()) - 1;
    while (found >= 0 &&
           !notePlace(all[std::size_t(found)], scene_->frame(), scene_->look().font).contains(place))
        --found;
    selectNote(found);
    if (found >= 0) {
        drag_ = Drag::note;
        setCursor(Qt::SizeAllCursor);
    }
}

void Chart::moveNote(const QPointF& place) {
    const QRectF frame = scene_->frame();
    ChartNote& note = scene_->notes[std::size_t(scene_->selectedNote)];
    // From where it is seen, which may be further in than where it was put.
    const QPointF corner = notePlace(note, frame, scene_->look().font).topLeft() + place - last_;
    note.x = std::clamp((corner.x() - frame.left()) / std::max(frame.width(), 1.0), 0.0, 1.0);
    note.y = std::clamp((corner.y() - frame.top()) / std::max(frame.height(), 1.0), 0.0, 1.0);
    refresh();
}

void Chart::removeNote() {
    scene_->notes.erase(scene_->notes.begin() + scene_->selectedNote);
    selectNote(-1);
    Q_EMIT notesChanged();
}

// Keys for the selected note; N selects the next one.
bool Chart::noteKey(const QKeyEvent& event) {
    const int count = int(scene_->notes.size());
    if (event.key() == Qt::Key_N && event.modifiers() == Qt::NoModifier && count > 0) {
        selectNote((scene_->selectedNote + 1) % count);
        return true;
    }
    if (scene_->selectedNote < 0)
        return false;
    switch (event.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        removeNote();
        return true;
    case Qt::Key_F2:
    case Qt::Key_Return:
        editNote(scene_->selectedNote);
        return true;
    case Qt::Key_Escape:
        selectNote(-1);
        return true;
    default:
        return nudgeNote(event.key());
    }
}

bool Chart::nudgeNote(int key) {
    static const std::map<int, QPointF> steps{
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    const auto step = steps.find(key);
    if (step == steps.end())
        return false;
    last_ = {};
    const QSizeF frame = scene_->frame().size() * keyStep;
    moveNote({step->second.x() * frame.width(), step->second.y() * frame.height()});
    Q_EMIT notesChanged();
    return true;
}

void Chart::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (drag_ != Drag::note)
        return;
    drag_ = Drag::none;
    unsetCursor();
    editNote(scene_->selectedNote);
}

void Chart::editNote(int index) {
    endEdit(true);
    const ChartNote& note = scene_->notes[std::size_t(index)];
    editor_ = new QPlainTextEdit(QString::fromStdString(note.text), this);
    editor_->setObjectName(QStringLiteral("noteEditor"));
    editor_->setAccessibleName(tr("Text of the note"));
    editor_->setToolTip(tr("Enter keeps the text, Shift+Enter breaks the line, Escape leaves it as it was"));
    editor_->setTabChangesFocus(true);
    const QRect place = notePlace(note, scene_->frame(), scene_->look().font).toRect();
    const QSize room = place.size().expandedTo({260, 70}).boundedTo(size());
    editor_->setGeometry(
        {QPoint(std::min(place.x(), width() - room.width()), std::min(place.y(), height() - room.height())),
         room});
    editor_->installEventFilter(this);
    editor_->selectAll();
    editor_->show();
    editor_->setFocus();
}

bool Chart::eventFilter(QObject* watched, QEvent* event) {
    if (watched != editor_)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            endEdit(true);
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (key.key() != Qt::Key_Escape && (!enter || key.modifiers().testFlag(Qt::ShiftModifier)))
        return false;
    endEdit(enter);
    setFocus();
    return true;
}

// A note that was emptied is removed.
void Chart::endEdit(bool keep) {
    if (!editor_)
        return;
    QPlainTextEdit* editor = std::exchange(editor_, nullptr);
    editor->removeEventFilter(this);
    editor->hide();
    editor->deleteLater(); // it may be on the way through its own event
    const int index = scene_->selectedNote;
    if (!keep || index < 0)
        return;
    const std::string text = editor->toPlainText().toStdString();
    if (text.empty()) {
        removeNote();
        return;
    }
    scene_->notes[std::size_t(index)].text = text;
    refresh();
    Q_EMIT notesChanged();
}

} // namespace tally
