// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QString>

#include <utility>
#include <vector>

namespace tally {

class FindBar;

// A read-only text in columns. Only the lines in sight are painted, so that a long table opens at once. The
// heading stays above the text. Selection by mouse and keyboard, copy, search (Ctrl+F, F3, Shift+F3).
class TextView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit TextView(QWidget* parent = nullptr);
    ~TextView() override;

    // CR LF, CR and LF break a line. An empty heading takes no room. Selection and place are reset.
    void setText(const QString& heading, const QString& text);
    const QString& text() const { return text_; } // lines joined by LF
    const QString& heading() const { return heading_; }
    int lineCount() const { return int(starts_.size()); }
    int firstVisibleLine() const;

    QString selectedText() const;
    // Positions in text(), anchor and cursor; equal when nothing is selected.
    std::pair<int, int> selection() const { return {anchor_, cursor_}; }
    void setSelection(int anchor, int cursor);
    void selectAll();
    // Copies the selection, or heading and text when nothing is selected.
    void copy() const;
    // Selects the next occurrence (letter case does not matter), going on at the other end; false when there
    // is none.
    bool find(const QString& what, bool backwards = false);
    void showFindBar();

    // The place of a character on the viewport.
    QRectF characterRect(int position) const;
    // The gap between characters that is nearest to a place on the viewport.
    int positionAt(const QPointF& place) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void layOut();
    void moveCursor(int position, bool select);
    bool moveKey(const QKeyEvent& event);
    void showCursor();
    int lineOf(int position) const;
    int lineEnd(int line) const;
    int at(int line, int column) const;
    int lineHeight() const;
    QString lineText(int line) const;
    double widestLine() const;
    void measure();

    QString heading_;
    QString text_;
    std::vector<int> starts_; // where each line begins in text_
    double widest_ = 0;       // pixels of the widest line
    int anchor_ = 0;
    int cursor_ = 0;
    QWidget* head_ = nullptr;
    FindBar* findBar_ = nullptr;
};

} // namespace tally
