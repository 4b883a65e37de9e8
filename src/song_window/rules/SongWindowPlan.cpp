// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/rules/SongWindowPlan.h"

#include <algorithm>

namespace sprout {

namespace {

constexpr int kSongMargin = 16;
constexpr int kListWidth = 360;
constexpr int kLabelHeight = 24;
constexpr int kSongNameHeight = 34;
constexpr int kModePicInset = 4; ///< of the drawing in the picture
constexpr int kSongRowGap = 12;
constexpr int kColumnGap = 8;
constexpr int kBelowList = 14;
constexpr int kNameBoxBelowList = 6;
constexpr int kBelowNameBox = 16;
constexpr int kLabelGap = 8;
constexpr int kBelowNameTitle = 2;

void PlaceList(SongWindowPlan& plan, const SongSelLayout& layout, int bandHeight)
{
    const int pictureLeft = kSongMargin - kModePicInset;
    const int titleLeft = pictureLeft + kModePicSide;
    const int titleTop = bandHeight + layout.ListTitleTop;
    plan.modePic = {pictureLeft, titleTop - (kModePicSide - kLabelHeight) / 2, kModePicSide, kModePicSide};
    plan.listTitleLbl = {titleLeft, titleTop, kSongMargin + kListWidth - titleLeft, kLabelHeight};
    plan.list = {kSongMargin, bandHeight + layout.ListTop, kListWidth, layout.ListHeight};
}

/// Places the buttons down from the upper edge of the list, all as wide as the widest, and sets the window's width.
void PlaceColumn(SongWindowPlan& plan, const SongWindowNeeds& needs)
{
    const int columnLeft = plan.list.Right() + kSongMargin;
    int columnWidth = 0;
    for (const BoxSize& button : needs.columnButtons)
        columnWidth = std::max(columnWidth, button.width);
    int top = plan.list.top;
    for (std::size_t i = 0; i < needs.columnButtons.size(); ++i) {
        plan.columnButtons[i] = {columnLeft, top, columnWidth, needs.columnButtons[i].height};
        top = plan.columnButtons[i].Bottom() + kColumnGap;
    }
    Box& helpBtn = plan.columnButtons.back();
    helpBtn.top = plan.list.Bottom() - helpBtn.height;
    plan.width = columnLeft + columnWidth + kSongMargin;
}

void PlaceNameBox(SongWindowPlan& plan, const SongWindowNeeds& needs)
{
    const int top = plan.list.Bottom() + kNameBoxBelowList;
    const int nameLeft = kSongMargin + needs.nameLabelWidth + kLabelGap;
    // The title begins with a blank; the label below it does not.
    const int titleLeft = kSongMargin - needs.blankWidth;
    plan.textTitleLbl = {titleLeft, top, plan.width - titleLeft - kSongMargin, kLabelHeight};
    const int nameTop = plan.textTitleLbl.Bottom() + kBelowNameTitle;
    plan.songNmLbl = {kSongMargin, nameTop, nameLeft - kSongMargin, kSongNameHeight};
    plan.songNameTxt = {nameLeft, nameTop, plan.width - nameLeft - kSongMargin, kSongNameHeight};
}

void PlaceRow(SongWindowPlan& plan, const SongWindowNeeds& needs, int top)
{
    int right = plan.width - kSongMargin;
    for (std::size_t i = needs.soundFileButtons.size(); i-- > 0;) {
        const BoxSize& button = needs.soundFileButtons[i];
        plan.soundFileButtons[i] = {right - button.width, top, button.width, button.height};
        right = plan.soundFileButtons[i].left - kSongRowGap;
    }
    plan.okBtn = {kSongMargin, top, needs.okBtn.width, needs.okBtn.height};
    plan.cancelBtn = {plan.okBtn.Right() + kSongRowGap, top, needs.cancelBtn.width, needs.cancelBtn.height};
    plan.height = plan.okBtn.Bottom() + kSongRowGap;
}

} // namespace

SongWindowPlan PlanSongWindow(const SongSelLayout& layout, const SongWindowNeeds& needs)
{
    SongWindowPlan plan;
    PlaceList(plan, layout, needs.bandHeight);
    PlaceColumn(plan, needs);
    if (layout.HasNameBox)
        PlaceNameBox(plan, needs);
    // Measured from the title of the name box: the box itself is two pixels lower.
    const int belowList =
        layout.HasNameBox ? kNameBoxBelowList + kLabelHeight + kSongNameHeight + kBelowNameBox : kBelowList;
    PlaceRow(plan, needs, plan.list.Bottom() + belowList);
    return plan;
}

} // namespace sprout
