// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Shared.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/FakeServices.h"

namespace sprout {
namespace {

void ExpectPlain(const Picture& picture, std::uint32_t colour)
{
    const auto pixels = picture.Pixels();
    EXPECT_EQ(picture.Width(), 32);
    EXPECT_EQ(picture.Height(), 32);
    EXPECT_EQ(pixels.size(), 1024U);
    EXPECT_TRUE(std::all_of(pixels.begin(), pixels.end(), [colour](std::uint32_t pixel) { return pixel == colour; }));
}

TEST(MakePlainPictures, MakesFourOfOneColourEach)
{
    const FakeServices services;
    MakePlainPictures();
    ExpectPlain(Shared().BlankPic, 0xC0C0C0);
    ExpectPlain(Shared().BlankStarPic, 0x00FFFF);
    ExpectPlain(Shared().DefaultTunePicture, 0xFF8000);
    ExpectPlain(Shared().NewTunePicture, 0x00C000);
}

} // namespace
} // namespace sprout
