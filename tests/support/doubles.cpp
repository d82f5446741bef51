// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FixedClock.h"
#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"
#include "support/QueuedPrompt.h"
