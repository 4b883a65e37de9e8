// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/ProgramPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "core/Shared.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

TEST(MakeProgramPictures, DrawsFourPicturesThatAreToldApart)
{
    const FakeServices services;
    MakeProgramPictures();
    const std::array pictures{Shared().BlankPic, Shared().BlankStarPic, Shared().DefaultTunePicture,
                              Shared().NewTunePicture};
    for (std::size_t a = 0; a < pictures.size(); ++a) {
        ASSERT_EQ(pictures[a].Width(), kPictureSide);
        for (std::size_t b = a + 1; b < pictures.size(); ++b) {
            EXPECT_FALSE(SamePicture(pictures[a], pictures[b]));
            EXPECT_FALSE(std::ranges::equal(pictures[a].Pixels(), pictures[b].Pixels())) << a << " and " << b;
        }
    }
}

} // namespace
} // namespace sprout
