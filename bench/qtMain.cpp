// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return tally::bench::runGoals(argc, argv);
}
