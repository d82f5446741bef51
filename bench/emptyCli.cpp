// SPDX-License-Identifier: GPL-3.0-or-later
// Loads what tallyline-cli loads, and does nothing.
int main() {
    return 0;
}
