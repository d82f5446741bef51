// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <gmock/gmock.h>

#include <algorithm>
#include <string_view>

int main(int argc, char** argv) {
    // Listing the tests needs no display; running them takes the platform that the environment names.
    const bool listing = std::any_of(argv, argv + argc, [](const char* argument) {
        return std::string_view(argument) == "--gtest_list_tests";
    });
    if (listing)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
