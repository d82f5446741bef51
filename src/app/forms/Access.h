// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QApplication;

namespace tally {

// Makes every window that is shown from here on easy to use without a mouse: access keys, underlined, and a
// tab order that follows the eye.
void easeAccess(QApplication& application);

} // namespace tally
