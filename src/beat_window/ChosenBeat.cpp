// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChosenBeat.h"

#include <QLabel>

#include "beat_window/ChoosenPicture.h"
#include "beat_window/NameLabel.h"
#include "sound/PlayMod.h"
#include "ui/forms/Dialogs.h"
#include "ui/widgets/Hints.h"
#include "ui/words/Texts.h"

namespace sprout {

void ChosenBeat::Show(BeatTable& table) const
{
    if (HasSelection(table)) {
        NmLbl->ShowName(Words::AsIs(table.NamesForPeople[SelectedEntry(table).Name]));
        ChoosenPic->ShowPicture(SelectedEntry(table).Picture);
        LoadSelectedSound(table);
        SetText(*DurLbl, DurationText(SelectedEntry(table).Sound));
    } else {
        NmLbl->ShowName(Words::Text("[none]"));
        ChoosenPic->ShowPicture({});
        SetText(*DurLbl, Words::AsIs(" "));
    }
    SetSpokenNameOf(*ChoosenPic, *NmLbl);
}

void PlayChosenBeat(BeatTable& table)
{
    if (HasSelection(table))
        return PlaySelectedBeat(table);
    ShowHint(Words::Text("Click on a picture to select a beat"));
    ShowMessage(Words::Text("Select a Beat first."));
    ShowHint({});
}

void PlaySelectedBeat(BeatTable& table)
{
    if (!HasSelection(table))
        return;
    LoadSelectedSound(table);
    PlayWaveStatus(SelectedEntry(table).Sound, Words::Text("Playing Beat"), Loop::No);
}

} // namespace sprout
