// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Json.h"
#include "study/Study.h"
#include "study/TransformerLoading.h"

namespace tally::cli {

// A study as one JSON document; a figure that does not exist is null. Times are "YYYY-MM-DDTHH:MM".
Json jsonOf(const study::Study& study);

Json jsonOf(const study::TransformerLoading& loading, const study::Axis& axis,
            const study::Transformer& transformer);

} // namespace tally::cli
