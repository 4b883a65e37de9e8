// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/TuneWindowPlan.h"

#include <algorithm>

#include "tune_window/rules/TuneTable.h"
#include "ui/rules/PictureGrid.h"

namespace sprout {

namespace {

constexpr int kMargin = 12;
constexpr int kGap = 6;
constexpr int kBeforePanel = 16;
constexpr int kPanelWidth = 392;
constexpr int kTool = 56;
constexpr int kWordWidth = 104;
constexpr int kWordHeight = 44;
constexpr int kSmallPic = 44; ///< the picture in its own size and its rim
constexpr int kLargePic = 76; ///< twice its size
constexpr int kNameHeight = 30;
constexpr int kAuthorHeight = 24;
constexpr std::int32_t kFewestRows = 2;
constexpr std::int32_t kFewestRowsBesidePanel = 5;

int WideWindow(const TuneWindowNeeds& needs)
{
    return 2 * kMargin + needs.gridWidth + kBeforePanel + kPanelWidth;
}

std::int32_t GridRows(const TuneWindowNeeds& needs, int besideRows, std::int32_t fewest)
{
    const std::int32_t fit = (needs.screenHeight - besideRows) / kGridCell;
    const std::int32_t filled = (needs.tunes + kTuneColumns - 1) / kTuneColumns;
    return std::max(std::min(std::max(filled + 1, fewest), fit), kFewestRows);
}

/// Picture at the left, name above author beside it.
void PlaceTune(TuneWindowPlan& plan, int x, int y, int pictureSide, int width)
{
    plan.tunePic = {x, y, pictureSide, pictureSide};
    const int textX = plan.tunePic.Right() + kGap + 2;
    const int textY = y + (pictureSide - kNameHeight - kAuthorHeight) / 2;
    plan.tuneNameLbl = {textX, textY, x + width - textX, kNameHeight};
    plan.createdByLbl = {textX, textY + kNameHeight, x + width - textX, kAuthorHeight};
}

void PlaceTools(TuneWindowPlan& plan, int x, int y)
{
    for (PlanBox& tool : plan.tools) {
        tool = {x, y, kTool, kTool};
        x += kTool + kGap;
    }
}

/// OK and Cancel, ending at a right and a lower edge.
void PlaceAnswers(TuneWindowPlan& plan, int right, int bottom)
{
    plan.cancelBtn = {right - kWordWidth, bottom - kWordHeight, kWordWidth, kWordHeight};
    plan.okBtn = {plan.cancelBtn.x - kGap - kWordWidth, bottom - kWordHeight, kWordWidth, kWordHeight};
}

TuneWindowPlan PlanWide(const TuneWindowNeeds& needs)
{
    TuneWindowPlan plan;
    const int top = needs.bandHeight + kMargin;
    const int beside = top + needs.gridFrameHeight + kMargin + needs.editorHeight + kMargin;
    plan.gridRows = GridRows(needs, beside, kFewestRowsBesidePanel);
    plan.width = WideWindow(needs);
    plan.grid = {kMargin, top, needs.gridWidth, plan.gridRows * kGridCell + needs.gridFrameHeight};
    const int panelX = plan.grid.Right() + kBeforePanel;
    PlaceTune(plan, panelX, top, kLargePic, kPanelWidth);
    PlaceTools(plan, panelX, plan.tunePic.Bottom() + kMargin);
    PlaceAnswers(plan, panelX + kPanelWidth, plan.grid.Bottom());
    plan.editor = {kMargin, plan.grid.Bottom() + kMargin, plan.width - 2 * kMargin, needs.editorHeight};
    plan.height = plan.editor.Bottom() + kMargin;
    return plan;
}

TuneWindowPlan PlanNarrow(const TuneWindowNeeds& needs)
{
    TuneWindowPlan plan;
    const int top = needs.bandHeight + kGap;
    const int beside = top + needs.gridFrameHeight + kGap + kTool + kGap + needs.editorHeight + kGap;
    plan.gridRows = GridRows(needs, beside, kFewestRowsBesidePanel);
    plan.width = 2 * kMargin + needs.gridWidth;
    plan.grid = {kMargin, top, needs.gridWidth, plan.gridRows * kGridCell + needs.gridFrameHeight};
    const int barY = plan.grid.Bottom() + kGap;
    const int barRight = plan.grid.Right();
    PlaceAnswers(plan, barRight, barY + (kTool + kWordHeight) / 2);
    const int toolsX = plan.okBtn.x - kGap - static_cast<int>(plan.tools.size()) * (kTool + kGap);
    PlaceTools(plan, toolsX, barY);
    PlaceTune(plan, kMargin, barY + (kTool - kSmallPic) / 2, kSmallPic, toolsX - kGap - kMargin);
    plan.editor = {kMargin, barY + kTool + kGap, needs.gridWidth, needs.editorHeight};
    plan.height = plan.editor.Bottom() + kGap;
    return plan;
}

} // namespace

TuneWindowPlan PlanTuneWindow(const TuneWindowNeeds& needs)
{
    if (needs.screenWidth < WideWindow(needs))
        return PlanNarrow(needs);
    TuneWindowPlan plan = PlanWide(needs);
    // A panel needs the height of some rows; where they have no room, the buttons stand in a row.
    return plan.gridRows < kFewestRowsBesidePanel ? PlanNarrow(needs) : plan;
}

} // namespace sprout
