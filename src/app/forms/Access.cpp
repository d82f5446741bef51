// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/Access.h"

#include "app/forms/AccessKeys.h"
#include "app/forms/AccessStyle.h"
#include "app/forms/EyeOrder.h"

#include <QApplication>

namespace tally {

void easeAccess(QApplication& application) {
    QApplication::setStyle(new AccessStyle);
    application.installEventFilter(new EyeOrder(&application));
    application.installEventFilter(new AccessKeys(&application));
}

} // namespace tally
