// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "view/Plot.h"
#include "view/forms/ChartNote.h"

#include <QSize>

#include <optional>
#include <string>
#include <vector>

namespace tally {

enum class PictureKind { png, pdf, svg };

// The kind that a path's extension names (any letter case); nothing for others.
std::optional<PictureKind> pictureKind(const std::string& path);

// Sizes that a picture may have, in pixels (1/96 inch in PDF and SVG).
constexpr int pictureMinimum = 100;
constexpr int pictureMaximum = 10000;

// The bytes of a picture of the plot, or of what is in sight of it, on white. Text stays text in PDF and SVG.
// Needs a QApplication, no display. Empty when there is not enough memory or the size is out of range.
std::string pictureBytes(const Plot& plot, const std::vector<ChartNote>& notes, PictureKind kind, QSize size,
                         const std::optional<Sight>& sight = {});

// Writes the picture that the path's extension names (.png, .pdf, .svg), the whole of it or nothing. False
// with a message in why.
bool exportPicture(const Plot& plot, const std::vector<ChartNote>& notes, const std::string& path, QSize size,
                   Files& files, std::string* why, const std::optional<Sight>& sight = {});

} // namespace tally
