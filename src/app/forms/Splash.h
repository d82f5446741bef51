// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplashScreen>

namespace tally {

// The splash window: name and version while the main window is made. It goes when that is painted, or on a
// click.
class Splash : public QSplashScreen {
    Q_OBJECT

public:
    Splash();
    // Not where no person looks at the screen.
    static bool wanted();

protected:
    void drawContents(QPainter* painter) override;
};

} // namespace tally
