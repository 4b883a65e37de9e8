// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>
#include <unordered_set>

#include "base/Text.h"
#include "beats/BeatEntry.h"
#include "core/Shared.h"
#include "tunes/StepEntry.h"
#include "tunes/TuneVersions.h"

namespace sprout {

namespace {

void WriteSteps(LongsWriter& data, const Tune& tune)
{
    data.Put(tune.StepCount);
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        WriteStepEntry(data, At(tune.Steps, i));
}

void WriteBeatNames(LongsWriter& data, const Tune& tune)
{
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        if (At(tune.Steps, i).IsOn())
            data.PutText(At(tune.Steps, i).StepBeat.Name);
}

void WriteBeatEntries(LongsWriter& data, const Tune& tune)
{
    // Names are equal if they are stored alike: the reader cannot tell them apart.
    std::unordered_set<std::string> written;
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        const TuneStep& step = At(tune.Steps, i);
        if (step.IsOn() && written.insert(StoredText(step.StepBeat.Name)).second)
            WriteBeatEntry(data, step.StepBeat);
    }
}

} // namespace

LongsWriter Write_Tune_Data(const Tune& tune)
{
    LongsWriter data;
    data.Put(0);
    data.PutText(tune.Name);
    data.PutText(tune.CreatedBy);
    data.PutPicture(tune.Picture);
    WriteSteps(data, tune);
    WriteBeatNames(data, tune);
    WriteBeatEntries(data, tune);
    data.Put(Shared().SongBeatsInside ? 1 : 0);
    // Does not check that the sound matches the steps: a tune that was not rendered again plays its old sound.
    if (Shared().SongBeatsInside)
        data.PutWave(tune.TuneWave);
    data.PutLastIndex();
    return data;
}

} // namespace sprout
