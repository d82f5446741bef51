// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/HelpText.h"

namespace tally::cli {

std::string positionalText(const CLI::Option& option) {
    const std::string name = option.get_name(true, false);
    const int maximum = option.get_expected_max();
    if (maximum >= CLI::detail::expected_max_vector_size)
        return name + "...";
    std::string text = name;
    for (int i = 1; i < maximum; ++i)
        text += " [" + name;
    return text + std::string(static_cast<std::size_t>(std::max(maximum - 1, 0)), ']');
}

std::string HelpText::make_option_usage(const CLI::Option* option) const {
    const std::string text = positionalText(*option);
    return option->get_required() ? text : "[" + text + "]";
}

} // namespace tally::cli
