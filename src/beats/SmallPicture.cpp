// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/SmallPicture.h"

#include "base/ScaledPicture.h"

namespace sprout {

namespace {

constexpr int kMostSmallSide = 4 * kPictureSide;

} // namespace

Picture SmallPicture(const Picture& picture)
{
    if (picture.Width() <= kMostSmallSide && picture.Height() <= kMostSmallSide)
        return picture;
    return ScaledPicture(picture, kMostSmallSide, kMostSmallSide);
}

} // namespace sprout
