// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ChosenTuneView.h"

#include <QLabel>

#include "tune_window/TunePicture.h"
#include "ui/words/Texts.h"

namespace sprout {

void ChosenTuneView::ShowTune(const Words& name, const Words& author, const Picture& picture) const
{
    ShowNames(name, author);
    TunePic->SetPicture(picture);
    SetSpokenName(*TunePic, name);
}

void ChosenTuneView::ShowNames(const Words& name, const Words& author) const
{
    SetFittingText(*TuneNameLbl, name);
    SetFittingText(*CreatedByLbl, author);
}

} // namespace sprout
