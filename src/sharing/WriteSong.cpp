// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/WriteSong.h"

#include "core/Busy.h"
#include "core/Shared.h"
#include "sound/TrackRender.h"
#include "ui/widgets/Hints.h"

namespace sprout {

ExportOutcome MixAndWrite(SongWriter write, const std::filesystem::path& file, const Words& writing)
{
    StoppableWork work(Words::Text("Mixing your song"));
    MixSong();
    ShowHint({});
    work.GoOnWith(writing);
    const WorkingSign sign;
    return write(Shared().Song.SongMix, file);
}

} // namespace sprout
