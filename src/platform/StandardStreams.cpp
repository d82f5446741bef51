// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/StandardStreams.h"

#ifndef _WIN32
#include <fcntl.h>
#endif

namespace tally {

void holdStandardStreams() {
#ifndef _WIN32
    // The lowest free number is given each time; each is opened for what a stream of its number does not do.
    for (int number = 0; number <= 2; ++number)
        if (fcntl(number, F_GETFD) == -1)
            open("/dev/null", number == 0 ? O_WRONLY : O_RDONLY);
#endif
}

} // namespace tally
