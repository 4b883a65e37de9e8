// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/TuneWindowPlan.h"

#include <algorithm>

#include "ui/rules/PictureGrid.h"

namespace sprout {

namespace {

constexpr int kPlanMargin = 12;
constexpr int kPlanGap = 6;
constexpr int kBeforePanel = 16;
constexpr int kPanelWidth = 392;
constexpr int kRoundButton = 48;
constexpr int kWordWidth = 104;
constexpr int kWordHeight = 44;
constexpr int kSmallPic = 44; ///< the picture at its own size plus its rim
constexpr int kLargePic = 76; ///< twice the picture's size plus its rim
constexpr int kTuneNameHeight = 30;
constexpr int kAuthorHeight = 24;
constexpr std::int32_t kFewestRows = 2;
constexpr std::int32_t kFewestRowsBesidePanel = 5;

int WideWindow(const TuneWindowNeeds& needs)
{
    return 2 * kPlanMargin + needs.gridWidth + kBeforePanel + kPanelWidth;
}

std::int32_t TuneGridRows(const TuneWindowNeeds& needs, int besideRows)
{
    return FittingGridRows({.count = needs.tunes,
                            .columns = kTuneColumns,
                            .wantedRows = kFewestRowsBesidePanel,
                            .roomPx = needs.screenHeight - besideRows,
                            .fewestRows = kFewestRows});
}

/// Picture on the left, name above author next to it.
void PlaceTune(TuneWindowPlan& plan, int x, int y, int pictureSide, int width)
{
    plan.tunePic = {x, y, pictureSide, pictureSide};
    const int textX = plan.tunePic.Right() + kPlanGap + 2;
    const int textY = y + (pictureSide - kTuneNameHeight - kAuthorHeight) / 2;
    plan.tuneNameLbl = {textX, textY, x + width - textX, kTuneNameHeight};
    plan.createdByLbl = {textX, textY + kTuneNameHeight, x + width - textX, kAuthorHeight};
}

void PlaceTools(TuneWindowPlan& plan, int x, int y)
{
    for (Box& tool : plan.tools) {
        tool = {x, y, kRoundButton, kRoundButton};
        x += kRoundButton + kPlanGap;
    }
}

/// Places OK and Cancel against a right and a lower edge.
void PlaceAnswers(TuneWindowPlan& plan, int right, int bottom)
{
    plan.cancelBtn = {right - kWordWidth, bottom - kWordHeight, kWordWidth, kWordHeight};
    plan.okBtn = {plan.cancelBtn.left - kPlanGap - kWordWidth, bottom - kWordHeight, kWordWidth, kWordHeight};
}

TuneWindowPlan PlanWide(const TuneWindowNeeds& needs)
{
    TuneWindowPlan plan;
    const int top = needs.bandHeight + kPlanMargin;
    const int beside = top + needs.gridFrameHeight + kPlanMargin + needs.editorHeight + kPlanMargin;
    plan.gridRows = TuneGridRows(needs, beside);
    plan.width = WideWindow(needs);
    plan.grid = {kPlanMargin, top, needs.gridWidth, plan.gridRows * kGridCell + needs.gridFrameHeight};
    const int panelX = plan.grid.Right() + kBeforePanel;
    PlaceTune(plan, panelX, top, kLargePic, kPanelWidth);
    PlaceTools(plan, panelX, plan.tunePic.Bottom() + kPlanMargin);
    PlaceAnswers(plan, panelX + kPanelWidth, plan.grid.Bottom());
    plan.editor = {kPlanMargin, plan.grid.Bottom() + kPlanMargin, plan.width - 2 * kPlanMargin, needs.editorHeight};
    plan.height = plan.editor.Bottom() + kPlanMargin;
    return plan;
}

TuneWindowPlan PlanNarrow(const TuneWindowNeeds& needs)
{
    TuneWindowPlan plan;
    const int top = needs.bandHeight + kPlanGap;
    const int beside = top + needs.gridFrameHeight + kPlanGap + kRoundButton + kPlanGap + needs.editorHeight + kPlanGap;
    plan.gridRows = TuneGridRows(needs, beside);
    plan.width = 2 * kPlanMargin + needs.gridWidth;
    plan.grid = {kPlanMargin, top, needs.gridWidth, plan.gridRows * kGridCell + needs.gridFrameHeight};
    const int barY = plan.grid.Bottom() + kPlanGap;
    const int barRight = plan.grid.Right();
    PlaceAnswers(plan, barRight, barY + (kRoundButton + kWordHeight) / 2);
    const int toolsX = plan.okBtn.left - kPlanGap - static_cast<int>(plan.tools.size()) * (kRoundButton + kPlanGap);
    PlaceTools(plan, toolsX, barY);
    PlaceTune(plan, kPlanMargin, barY + (kRoundButton - kSmallPic) / 2, kSmallPic, toolsX - kPlanGap - kPlanMargin);
    plan.editor = {kPlanMargin, barY + kRoundButton + kPlanGap, needs.gridWidth, needs.editorHeight};
    plan.height = plan.editor.Bottom() + kPlanGap;
    return plan;
}

} // namespace

TuneWindowPlan PlanTuneWindow(const TuneWindowNeeds& needs)
{
    if (needs.screenWidth < WideWindow(needs))
        return PlanNarrow(needs);
    TuneWindowPlan plan = PlanWide(needs);
    // A panel needs the height of several rows; if they do not fit, the buttons are in a row.
    return plan.gridRows < kFewestRowsBesidePanel ? PlanNarrow(needs) : plan;
}

} // namespace sprout
