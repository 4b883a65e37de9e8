// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Shared.h"

namespace sprout {

namespace {

Picture PlainPicture(std::uint32_t colour)
{
    return {kPictureSide, kPictureSide, std::vector<std::uint32_t>(kPicturePixels, colour)};
}

} // namespace

SharedState& Shared()
{
    static SharedState state;
    return state;
}

void MakePlainPictures()
{
    SharedState& shared = Shared();
    shared.BlankPic = PlainPicture(0xC0C0C0);
    shared.BlankStarPic = PlainPicture(0x00FFFF);
    shared.DefaultTunePicture = PlainPicture(0xFF8000);
    shared.NewTunePicture = PlainPicture(0x00C000);
}

} // namespace sprout
