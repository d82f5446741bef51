// SPDX-License-Identifier: GPL-3.0-or-later
// A main window with the menus of tallyline and nothing in it, until it is painted.
#include "app/Menus.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

namespace {

class EmptyWindow : public QMainWindow {
protected:
    void paintEvent(QPaintEvent* event) override {
        QMainWindow::paintEvent(event);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    EmptyWindow window;
    const tally::Menus menus(*window.menuBar(), &window);
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
