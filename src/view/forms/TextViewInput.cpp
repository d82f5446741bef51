// SPDX-License-Identifier: GPL-3.0-or-later
// What mouse and keyboard do in the text view.
#include "view/forms/TextView.h"

#include "view/forms/FindBar.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace tally {

void TextView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    moveCursor(positionAt(event->position()), event->modifiers().testFlag(Qt::ShiftModifier));
}

void TextView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        moveCursor(positionAt(event->position()), true); // beyond the border this scrolls
}

void TextView::mouseDoubleClickEvent(QMouseEvent* event) {
    const int place = positionAt(event->position());
    int from = place;
    int to = place;
    while (from > 0 && !text_[from - 1].isSpace())
        --from;
    while (to < text_.size() && !text_[to].isSpace())
        ++to;
    setSelection(from, to);
}

void TextView::moveCursor(int position, bool select) {
    setSelection(select ? anchor_ : position, position);
}

void TextView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        return copy();
    if (event->matches(QKeySequence::SelectAll))
        return selectAll();
    if (event->matches(QKeySequence::Find))
        return showFindBar();
    if (event->key() == Qt::Key_F3) {
        if (findBar_->what().isEmpty())
            showFindBar();
        else
            findBar_->setFound(find(findBar_->what(), event->modifiers().testFlag(Qt::ShiftModifier)));
        return;
    }
    if (event->key() == Qt::Key_Escape && findBar_->isVisible()) {
        Q_EMIT findBar_->closed();
        return;
    }
    if (!moveKey(*event))
        QAbstractScrollArea::keyPressEvent(event);
}

bool TextView::moveKey(const QKeyEvent& event) {
    const bool select = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const int line = lineOf(cursor_);
    const int column = cursor_ - starts_[std::size_t(line)];
    const int page = verticalScrollBar()->pageStep();
    const int last = lineCount() - 1;
    switch (event.key()) {
    case Qt::Key_Up:
        moveCursor(at(line - 1, column), select);
        return true;
    case Qt::Key_Down:
        moveCursor(at(line + 1, column), select);
        return true;
    case Qt::Key_PageUp:
        moveCursor(at(line - page, column), select);
        return true;
    case Qt::Key_PageDown:
        moveCursor(at(line + page, column), select);
        return true;
    case Qt::Key_Left:
        moveCursor(cursor_ - 1, select);
        return true;
    case Qt::Key_Right:
        moveCursor(cursor_ + 1, select);
        return true;
    case Qt::Key_Home:
        moveCursor(at(control ? 0 : line, 0), select);
        return true;
    case Qt::Key_End:
        moveCursor(lineEnd(control ? last : line), select);
        return true;
    default:
        return false;
    }
}

void TextView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("textMenu"));
    menu.addAction(tr("Copy"), QKeySequence::Copy, this, &TextView::copy);
    menu.addAction(tr("Select all"), QKeySequence::SelectAll, this, &TextView::selectAll);
    menu.addAction(tr("Find"), QKeySequence::Find, this, &TextView::showFindBar);
    menu.exec(event->globalPos());
}

} // namespace tally
