// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/Picture.h"
#include "base/Words.h"

class QLabel;

namespace sprout {

class TunePicture;

/// What the tune window shows of a tune: its picture, its name and its author. The window owns these controls.
struct ChosenTuneView {
    TunePicture* TunePic = nullptr;
    QLabel* TuneNameLbl = nullptr;
    QLabel* CreatedByLbl = nullptr;

    /// The picture is also called by the name.
    void ShowTune(const Words& name, const Words& author, const Picture& picture) const;

    /// Shows names beside the picture that is there. The end of a name that does not fit is cut off; its tool tip shows
    /// all of it.
    void ShowNames(const Words& name, const Words& author) const;
};

} // namespace sprout
