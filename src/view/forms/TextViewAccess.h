// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

namespace tally {

class TextView;

// Reads a text view out to assistive programs.
class TextViewAccess : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit TextViewAccess(TextView* view);
    // Makes the accessibility layer know text views; once is enough.
    static void install();
    static void textChanged(TextView& view);
    static void selectionChanged(TextView& view);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    TextView& view() const;
};

} // namespace tally
