// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneGrid.h"

#include <vector>

#include "base/FilePaths.h"
#include "core/Shared.h"
#include "tune_window/rules/TuneWindowPlan.h"
#include "tunes/TunOpnSavClass.h"
#include "ui/words/Texts.h"

namespace sprout {

TuneGrid::TuneGrid(QWidget* parent) : PictureGridPic(kTuneColumns, parent)
{
    setObjectName(QStringLiteral("ShowAllPic"));
    SetSpokenName(*this, Words::Text("Tunes"));
}

void TuneGrid::TakeTuneTable()
{
    std::vector<GridEntry> tunes;
    tunes.reserve(static_cast<std::size_t>(Shared().TuneTableCount));
    for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i) {
        const Tune& tune = At(Shared().TuneTable, i);
        tunes.push_back({tune.Picture, tune.Name, IsOriginalTune(tune)});
    }
    SetEntries(tunes);
}

void TuneGrid::ShowSelection(std::int32_t tune)
{
    SetSelected(tune);
    RefreshShowAllPic();
}

void TuneGrid::ShowNoTunes()
{
    SetLines({Words::Text(" No Tune file found to show here."), Words::Text(" Tunes folder: "),
              Words::AsIs(PathText(Shared().UserTunes)),
              Words::Text(" This needs tune '.TqTun' file & 32x32 picture '.bmp' file as pair."),
              Words::Text(" Please reinstall the software.")});
    ShowSelection(0);
}

} // namespace sprout
