// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/rules/BeatWindowPlan.h"

#include <algorithm>

#include "ui/rules/PictureGrid.h"

namespace sprout {

namespace {

constexpr std::int32_t kFewestBeatRows = 8;
constexpr int kBeatMargin = 16;
constexpr int kBeatNoteTop = 8;
constexpr int kBeatNoteHeight = 26;
constexpr int kBeatGap = 8;
constexpr int kBeatRowGap = 12;
constexpr int kBeatNameHeight = 48; // two lines
constexpr int kBeatDurationHeight = 46;
constexpr int kBeatGridTop = kBeatNoteTop + kBeatNoteHeight + kBeatGap / 2;

/// The rows that the list needs and the screen has room for.
std::int32_t BeatGridRows(const BeatWindowNeeds& needs)
{
    const int beside = needs.bandHeight + kBeatGridTop + needs.gridFrame.height + needs.okBtn.height + 2 * kBeatRowGap;
    return FittingGridRows({.count = needs.beats,
                            .columns = kBeatColumns,
                            .wantedRows = kFewestBeatRows,
                            .roomPx = needs.screenHeight - beside,
                            .fewestRows = kFewestBeatRows});
}

/// Places the picture and the play button side by side at the top, the name and the duration below.
void PlaceChoice(BeatWindowPlan& plan, const BeatWindowNeeds& needs, const Box& column)
{
    const int pairWidth = needs.choosenPic.width + kBeatGap + needs.testPlayBtn.width;
    const int left = column.left + (column.width - pairWidth) / 2;
    plan.choosenPic = {left, column.top, needs.choosenPic.width, needs.choosenPic.height};
    plan.testPlayBtn = {plan.choosenPic.Right() + kBeatGap,
                        column.top + (needs.choosenPic.height - needs.testPlayBtn.height) / 2, needs.testPlayBtn.width,
                        needs.testPlayBtn.height};
    plan.nmLbl = {column.left, plan.choosenPic.Bottom() + kBeatGap / 2, column.width, kBeatNameHeight};
    plan.durLbl = {column.left, plan.nmLbl.Bottom(), column.width, kBeatDurationHeight};
}

/// Places the buttons up from the grid's lower edge.
void PlaceColumn(BeatWindowPlan& plan, const BeatWindowNeeds& needs, const Box& column)
{
    int bottom = column.Bottom();
    for (std::size_t i = plan.columnButtons.size(); i-- > 0;) {
        const int height = needs.columnHeights[i];
        plan.columnButtons[i] = {column.left, bottom - height, column.width, height};
        bottom -= height + kBeatGap;
    }
}

void PlaceRow(BeatWindowPlan& plan, const BeatWindowNeeds& needs, const Box& column)
{
    const int top = plan.grid.Bottom() + kBeatRowGap;
    plan.okBtn = {kBeatMargin, top, needs.okBtn.width, needs.okBtn.height};
    plan.cancelBtn = {plan.okBtn.Right() + kBeatRowGap, top, needs.cancelBtn.width, needs.cancelBtn.height};
    plan.helpBtn = {column.left, top, column.width, needs.helpHeight};
    plan.width = column.Right() + kBeatMargin;
    plan.height = plan.okBtn.Bottom() + kBeatRowGap;
}

} // namespace

BeatWindowPlan PlanBeatWindow(const BeatWindowNeeds& needs)
{
    BeatWindowPlan plan;
    plan.gridRows = BeatGridRows(needs);
    plan.grid = {kBeatMargin, needs.bandHeight + kBeatGridTop, needs.gridFrame.width,
                 plan.gridRows * kGridCell + needs.gridFrame.height};
    plan.noteLbl = {kBeatMargin, needs.bandHeight + kBeatNoteTop, plan.grid.width, kBeatNoteHeight};
    const int choiceWidth = needs.choosenPic.width + kBeatGap + needs.testPlayBtn.width;
    const Box column{plan.grid.Right() + kBeatMargin, plan.grid.top, std::max(choiceWidth, needs.columnWidth),
                     plan.grid.height};
    PlaceChoice(plan, needs, column);
    PlaceColumn(plan, needs, column);
    PlaceRow(plan, needs, column);
    return plan;
}

} // namespace sprout
