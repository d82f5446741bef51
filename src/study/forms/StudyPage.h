// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>

#include <memory>

namespace tally::study {

class StudySheet;
struct Study;

// The page of a study on screen. A click on a peak, a run, a plot over time or a cell of the heat map tells
// its time.
class StudyPage : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit StudyPage(QWidget* parent = nullptr);
    ~StudyPage() override;

    // Shows a study, scrolled as before; it must outlive what is shown. Null shows nothing.
    void setStudy(const Study* study);

Q_SIGNALS:
    void timeChosen(qint64 minutes); // since 1970-01-01 00:00

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void layOut();
    QPointF onSheet(QPointF viewportPoint) const;

    std::unique_ptr<StudySheet> sheet_;
};

} // namespace tally::study
