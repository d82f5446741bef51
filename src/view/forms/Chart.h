// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"
#include "view/forms/ChartNote.h"
#include "view/forms/CursorPaint.h"

#include <QPixmap>
#include <QRectF>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QLabel;
class QPlainTextEdit;

namespace tally {

class PlotScene;

// The chart of the main window, "ChartFX1": paints a Plot, lets a span be marked, zooms and pans the picture,
// carries the notes. It changes no range: what a mark means is for the one who listens.
class Chart : public QWidget {
    Q_OBJECT

public:
    explicit Chart(QWidget* parent = nullptr);
    ~Chart() override;

    // Shows a plot, the whole of it, without a marked span; notes stay. Called from a slot of spanEnded with
    // as many points as before, it keeps the picture's zoom and the shading of the span.
    void showPlot(const Plot& plot);
    // Takes plot, span and notes away.
    void clear();
    bool isEmpty() const { return !shown_; }
    const Plot& plot() const;

    // Gives the label texts ("MMM dd hh:mm") for points while the picture is zoomed; the nine labels of the
    // plot stand when there is none.
    void setTimeOf(std::function<std::string(int point)> timeOf);
    // Gives the time of a point as the cursor's box says it; empty where the plot has none.
    void setPointTime(std::function<std::string(int point)> pointTime);
    // The label over the chart that says that the one-page plot is on.
    void setOnePage(bool on);

    // The shaded span, first and last point.
    std::optional<std::pair<int, int>> span() const;
    void markSpan(int first, int last);
    void clearSpan();

    // What the pointer or the keys point at.
    const std::optional<Cursor>& cursor() const { return cursor_; }
    // Moves the cursor by readings; without one it begins where the span ends, else in the middle of what is
    // in sight. `marking` draws the span along.
    void stepCursor(int steps, bool marking);
    // Takes one thing away: a drag, the box, cursor and span, the enlarged picture; else tells leaveWanted.
    void leave();

    // While on, the next drag draws a box that is then looked at closely.
    void setBoxMode(bool on);
    bool boxMode() const { return boxMode_; }

    // Hides a line or shows it again.
    void toggleLine(int series);
    const LinesShown& lines() const;

    const std::vector<ChartNote>& notes() const;
    void setNotes(std::vector<ChartNote> notes);
    // Places a note near the upper left corner of the frame, below those already there. Empty texts are
    // ignored.
    void addNote(const std::string& text);
    void clearNotes();

    // What is in sight; nothing while that is the whole plot.
    std::optional<Sight> sight() const;
    // The chart as it is shown, in the colours of paper.
    QImage picture() const;
    // Puts that picture on the clipboard.
    void copyPicture() const;

    void zoomIn();
    void zoomOut();
    void resetView();
    // Moves the picture by parts of its width and height: positive is later and higher.
    void pan(double across, double up);
    // The first and last value of the x axis in sight.
    std::pair<double, double> visiblePoints() const;
    // Where the lines are drawn, in pixels of the widget.
    QRectF frame() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void spanStarted(int point); // 0 to points - 1
    void spanEnded(int point);   // the same; before the start when drawn leftwards
    // The reading seen nearest to the pointer, or that of the keys' cursor; point -1 off the data.
    void pointerMoved(int point, int series = 0);
    void spanDrawn();   // the span has changed, also while it is being drawn
    void spanLeft();    // the mark was given up
    void zoomWanted();  // Enter
    void leaveWanted(); // Escape with nothing left to take away
    void boxModeChanged(bool on);
    void linesChanged();
    void notesChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { none, span, pan, note, box };

    void lookAgain();
    void refresh();
    void paintScene(QPainter& painter);
    void paintOverlay(QPainter& painter);
    void pointAgain();
    void moveCursor(std::optional<Cursor> cursor);
    void endBox();
    void liftLine(int series);
    bool arrowKey(const QKeyEvent& event);
    bool pictureKey(const QKeyEvent& event);
    int pointAt(const QPointF& place) const;
    int nearestPoint(const QPointF& place) const;
    void pressNote(const QPointF& place);
    void moveNote(const QPointF& place);
    void selectNote(int index);
    void removeNote();
    void editNote(int index);
    void endEdit(bool keep);
    void placeOnePage();
    bool noteKey(const QKeyEvent& event);
    bool nudgeNote(int key);

    std::unique_ptr<PlotScene> scene_;
    QLabel* onePage_ = nullptr;
    QPlainTextEdit* editor_ = nullptr;
    bool shown_ = false;
    bool marking_ = false; // spanEnded is being told
    Drag drag_ = Drag::none;
    int spanFrom_ = -1;
    QPointF last_;
    std::function<std::string(int)> pointTime_;
    std::optional<Cursor> cursor_;
    bool byKeys_ = false; // the cursor
    int anchor_ = -1;     // where the keys began to mark
    bool inside_ = false; // the pointer is over the chart
    bool boxMode_ = false;
    QRectF box_;
    QPixmap backing_; // the picture under a moving cursor
};

} // namespace tally
