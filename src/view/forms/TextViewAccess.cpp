// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/TextViewAccess.h"

#include "view/forms/TextView.h"

#include <algorithm>

namespace tally {
namespace {

QAccessibleInterface* make(const QString&, QObject* object) {
    auto* view = qobject_cast<TextView*>(object);
    return view ? new TextViewAccess(view) : nullptr;
}

} // namespace

void TextViewAccess::install() {
    static const bool once = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    Q_UNUSED(once)
}

void TextViewAccess::textChanged(TextView& view) {
    if (!QAccessible::isActive())
        return;
    QAccessibleTextCursorEvent event(&view, 0);
    QAccessible::updateAccessibility(&event);
}

void TextViewAccess::selectionChanged(TextView& view) {
    if (!QAccessible::isActive())
        return;
    const auto [from, to] = std::minmax(view.selection().first, view.selection().second);
    QAccessibleTextSelectionEvent event(&view, from, to);
    event.setCursorPosition(view.selection().second);
    QAccessible::updateAccessibility(&event);
}

TextViewAccess::TextViewAccess(TextView* view) : QAccessibleWidget(view, QAccessible::EditableText) {}

TextView& TextViewAccess::view() const {
    return *static_cast<TextView*>(widget());
}

void* TextViewAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString TextViewAccess::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? view().heading() : QAccessibleWidget::text(kind);
}

QAccessible::State TextViewAccess::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void TextViewAccess::selection(int index, int* start, int* end) const {
    const auto [from, to] = std::minmax(view().selection().first, view().selection().second);
    *start = index == 0 ? from : 0;
    *end = index == 0 ? to : 0;
}

int TextViewAccess::selectionCount() const {
    return view().selection().first == view().selection().second ? 0 : 1;
}

void TextViewAccess::addSelection(int start, int end) {
    setSelection(0, start, end);
}

void TextViewAccess::removeSelection(int) {
    setCursorPosition(cursorPosition());
}

void TextViewAccess::setSelection(int, int start, int end) {
    view().setSelection(start, end);
}

int TextViewAccess::cursorPosition() const {
    return view().selection().second;
}

void TextViewAccess::setCursorPosition(int position) {
    view().setSelection(position, position);
}

QString TextViewAccess::text(int start, int end) const {
    return view().text().mid(start, end - start);
}

int TextViewAccess::characterCount() const {
    return int(view().text().size());
}

QRect TextViewAccess::characterRect(int offset) const {
    const QRect place = view().characterRect(offset).toRect();
    return {view().viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int TextViewAccess::offsetAtPoint(const QPoint& point) const {
    return view().positionAt(view().viewport()->mapFromGlobal(point));
}

void TextViewAccess::scrollToSubstring(int start, int end) {
    view().setSelection(start, end);
}

QString TextViewAccess::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace tally
