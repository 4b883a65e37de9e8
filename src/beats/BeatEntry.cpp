// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatEntry.h"

#include "base/Text.h"
#include "beats/BeatFiles.h"
#include "core/Shared.h"

namespace sprout {

namespace {

bool IsKeptOutside(const Beat& beat)
{
    return !Shared().SongBeatsInside && !FindBeatWave(StoredText(beat.Name)).empty();
}

} // namespace

void WriteBeatEntry(LongsWriter& data, const Beat& beat)
{
    if (IsKeptOutside(beat))
        return data.Put(0);
    data.Put(1);
    data.PutText(beat.DateStamp);
    data.PutWave(beat.Sound);
    data.PutPicture(beat.Picture);
}

void ReadStoredBeat(LongsReader& data, Beat& beat)
{
    beat.DateStamp = data.GetText();
    beat.Sound = data.GetWave();
    beat.Picture = data.GetPicture();
    beat.Loaded = true;
}

void SkipStoredBeat(LongsReader& data)
{
    data.SkipText();
    data.SkipWave();
    data.SkipPicture();
}

} // namespace sprout
