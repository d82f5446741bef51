// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace tally {

// Does what waits for a disk in a thread, while the event loop runs on without the user's input. Throws what
// `work` throws. Needs an application object.
void patiently(const std::function<void()>& work);

} // namespace tally
