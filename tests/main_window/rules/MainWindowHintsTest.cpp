// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/MainWindowHints.h"

#include <gtest/gtest.h>

#include <string>

#include "base/Product.h"

namespace sprout {
namespace {

TEST(MainWindowHint, TellsWhatAControlDoes)
{
    EXPECT_EQ(MainWindowHint("TrackAddRecBtn").English(),
              "Add Audio track button. Use it to record your voice sound or choose a "
              "wav file to add as an audio track");
    EXPECT_EQ(MainWindowHint("SngTitle2Lbl"), MainWindowHint("SngTitleLbl"));
    EXPECT_EQ(MainWindowHint("StatusFramePic").English(), "Move the mouse over any button to read help clue here");
    EXPECT_EQ(MainWindowHint("AboutBtn").English(),
              "About button, use it to read about " + std::string(kProductFamily));
}

TEST(MainWindowHint, IsEmptyWhereThereIsNone)
{
    EXPECT_EQ(MainWindowHint("DemoBtn").English(), "");
    EXPECT_EQ(MainWindowHint("NoSuchBtn").English(), "");
}

} // namespace
} // namespace sprout
