// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/MemoryJournal.h"
#include "support/RecordingPanel.h"
#include "support/VirtualLine.h"
