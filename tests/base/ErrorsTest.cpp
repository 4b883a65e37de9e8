// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Errors.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>

namespace sprout {
namespace {

TEST(ErrorWords, TellEveryErrorPlainly)
{
    EXPECT_EQ(ErrorWords(RunTimeError(Words::Text("The file is too short."))).English(), "The file is too short.");
    EXPECT_EQ(ErrorWords(std::bad_alloc()).English(), "There is not enough memory.");
    EXPECT_EQ(ErrorWords(std::length_error("vector")).English(), "There is not enough memory.");
    const std::filesystem::filesystem_error denied("remove", std::make_error_code(std::errc::permission_denied));
    EXPECT_EQ(ErrorWords(denied).English(), "Permission denied");
}

TEST(ErrorWords, KeepTheWordsOfTheProgramsOwnErrors)
{
    const Words sentence = Words::Text("The file %1 was not found.", "%1.TqSng");
    EXPECT_EQ(ErrorWords(RunTimeError(sentence)), sentence);
    EXPECT_STREQ(RunTimeError(sentence).what(), "The file %1.TqSng was not found.");
    EXPECT_EQ(ErrorWords(std::runtime_error("%1")), Words::AsIs("%1"));
}

} // namespace
} // namespace sprout
