// SPDX-License-Identifier: GPL-3.0-or-later
// Carries the precompiled header that the rooms on Qt share.
