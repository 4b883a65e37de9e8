// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Errors.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>

namespace sprout {
namespace {

TEST(ErrorText, TellsEveryErrorInPlainWords)
{
    EXPECT_EQ(ErrorText(RunTimeError("The file is too short.")), "The file is too short.");
    EXPECT_EQ(ErrorText(std::bad_alloc()), "There is not enough memory.");
    EXPECT_EQ(ErrorText(std::length_error("vector")), "There is not enough memory.");
    const std::filesystem::filesystem_error denied("remove", std::make_error_code(std::errc::permission_denied));
    EXPECT_EQ(ErrorText(denied), "Permission denied");
}

} // namespace
} // namespace sprout
