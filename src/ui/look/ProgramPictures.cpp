// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/ProgramPictures.h"

#include "core/Shared.h"
#include "ui/look/Artwork.h"

namespace sprout {

void MakeProgramPictures()
{
    SharedState& shared = Shared();
    shared.BlankPic = ArtworkPicture(QStringLiteral("pictures/BlankPic"));
    shared.BlankStarPic = ArtworkPicture(QStringLiteral("pictures/BlankStarPic"));
    shared.DefaultTunePicture = ArtworkPicture(QStringLiteral("pictures/DefaultTunePicture"));
    shared.NewTunePicture = ArtworkPicture(QStringLiteral("pictures/NewTunePicture"));
}

} // namespace sprout
