// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Study.h"

#include <string>

class QPagedPaintDevice;

namespace tally::study {

// Draws a study on the pages of a device, each with its number; false when it would not begin or go on.
// `from` and `to` choose pages, counted from 1; 0 stands for the last one.
bool paintStudy(const Study& study, QPagedPaintDevice& device, int from = 1, int to = 0);

// The bytes of a PDF of A4 pages. Needs a QApplication, no display; any thread. Throws a Fault when it fails.
std::string studyPdf(const Study& study);

// The bytes of one PNG picture of the whole page, on white. Throws a Fault when it fails.
std::string studyPicture(const Study& study);

} // namespace tally::study
