// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChosenBeat.h"

#include <QCoreApplication>
#include <QLabel>

#include "beat_window/ChoosenPicture.h"
#include "beat_window/NameLabel.h"
#include "sound/PlayMod.h"
#include "ui/Dialogs.h"
#include "ui/Hints.h"
#include "ui/QtText.h"

namespace sprout {

void ChosenBeat::Show(BeatTable& table) const
{
    if (HasSelection(table)) {
        NmLbl->ShowName(QtText(table.NamesForPeople[SelectedEntry(table).Name]));
        ChoosenPic->ShowPicture(SelectedEntry(table).Picture);
        LoadSelectedSound(table);
        DurLbl->setText(QtText(DurationText(SelectedEntry(table).Sound)));
    } else {
        NmLbl->ShowName(QCoreApplication::translate("BeatWindow", "[none]"));
        ChoosenPic->ShowPicture({});
        DurLbl->setText(QStringLiteral(" "));
    }
    ChoosenPic->setAccessibleName(NmLbl->text());
}

void PlayChosenBeat(BeatTable& table)
{
    if (HasSelection(table))
        return PlaySelectedBeat(table);
    ShowHint(QStringLiteral("Click on a picture to select a beat"));
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
