// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatGrid.h"

#include <string>
#include <vector>

#include "base/FilePaths.h"
#include "beat_window/rules/BeatWindowPlan.h"
#include "core/Shared.h"
#include "ui/words/Texts.h"

namespace sprout {

BeatGrid::BeatGrid(QWidget* parent) : PictureGridPic(kBeatColumns, parent)
{
    setObjectName(QStringLiteral("ShowAllPic"));
    SetSpokenName(*this, Words::Text("Beats"));
}

void BeatGrid::ShowBeats(const BeatTable& table)
{
    std::vector<GridEntry> beats;
    beats.reserve(table.BeatList.size());
    for (std::int32_t i = 1; i <= table.BeatListCount; ++i) {
        const Beat& beat = At(table.BeatList, i);
        const auto name = table.NamesForPeople.find(beat.Name);
        beats.push_back({beat.Picture, name == table.NamesForPeople.end() ? std::string() : name->second,
                         table.BeatProtected[static_cast<std::size_t>(i)]});
    }
    SetEntries(beats);
}

void BeatGrid::ShowSelection(const BeatTable& table)
{
    if (table.BeatListCount == 0)
        SetLines({Words::Text(" No beat file found to show here."),
                  Words::Text(" Beats folder: %1", PathText(Shared().UserBeats)),
                  Words::Text(" This needs beat '.wav' file and 32x32 picture '.bmp' file as pair."),
                  Words::Text(" Please reinstall the software.")});
    SetSelected(table.SelectedBeat);
    RefreshShowAllPic();
}

} // namespace sprout
