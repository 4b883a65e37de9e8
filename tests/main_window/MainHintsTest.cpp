// SPDX-License-Identifier: GPL-3.0-or-later
// The hints on the status line of the main window.
#include <array>
#include <string_view>

#include "main_window/MainMouseTest.h"

namespace sprout {
namespace {

struct Hint {
    const char* control;
    const char* text;
};

/// Where the mouse must be in the title strip for a button to appear.
struct StripPoint {
    const char* control;
    int x;
};

constexpr std::array kHints{
    Hint{"AboutBtn", "About button, use it to read about Tonquill"},
    Hint{"BrushBtn", "Paint brush button, use this to choose paint brush for painting the tracks"},
    Hint{"CloseImgBtn", "Close button"},
    Hint{"EmailBtn", "Email Song button, use it to send this song to your friend by email"},
    Hint{"EraserBtn", "Eraser button, use this to choose eraser for painting the tracks"},
    Hint{"HelpBtn", "Help button, use it to see help"},
    Hint{"MaximizeImgBtn", "Maximize button"},
    Hint{"MinimizeImgBtn", "Minimize button"},
    Hint{"NewBtn", "New button, use it to start making your own new song"},
    Hint{"OpenBtn", "Open button, use it to open an existing song"},
    Hint{"PlayAllBtn", "Play all button, use it to play the full song (all tracks)"},
    Hint{"PlayStopBtn", "Stop play button, use it to stop any playing sound"},
    Hint{"PlayToolBtn", "Play Tool button, choose this button and click on track to play from there"},
    Hint{"RestoreImgBtn", "Restore button"},
    Hint{"SaveBtn", "Save button, use it to save the song you made"},
    Hint{"SngCreateLbl", "Song created by.., use the 'Change button' to enter your name there"},
    Hint{"SngCreate2Lbl", "Song created by.., use the 'Change button' to enter your name there"},
    Hint{"SngDurLbl", "Song duration in seconds"},
    Hint{"SngTitleLbl", "Song name, use the 'Change button' to change it"},
    Hint{"SngTitle2Lbl", "Song name, use the 'Change button' to change it"},
    Hint{"SongTitleChgBtn", "Change button, use it to change 'Song name' and 'Created by'"},
    Hint{"TempoLbl", "Tempo percentage, use the tempo slider to change"},
    Hint{"TempoPrtImg", "Slide this pointer to adjust tempo"},
    Hint{"TempoSliderImg", "Tempo slider, use it to change the speed of the song"},
    Hint{"TrackAddBtn", "Add Music track button. Use it to add a new music track"},
    Hint{"TrackAddRecBtn", "Add Audio track button. Use it to record your voice sound or choose a wav file to add as "
                           "an audio track"},
    Hint{"TrackAudioBtn", "Recorded button, Click to edit your recording on this track"},
    Hint{"TrackDeleteBtn", "Delete button, Click to delete this track"},
    Hint{"TrackPlayBtn", "Track play button, use it to test play this track"},
    Hint{"TrackTuneBtn", "Tune button, Click to choose a tune, keep mouse over it to play"},
};

class MainHintsTest : public MainMouseTest {};

TEST_F(MainHintsTest, TellsWhatEachControlIsFor)
{
    for (const Hint& hint : kHints) {
        // The buttons of a track appear under the mouse.
        for (const StripPoint& button :
             {StripPoint{"TrackTuneBtn", 30}, StripPoint{"TrackDeleteBtn", 76}, StripPoint{"TrackPlayBtn", 115}})
            if (std::string_view(hint.control) == button.control)
                MoveInStrip(QPoint(button.x, 40));
        if (std::string_view(hint.control) == "RestoreImgBtn")
            window->showMaximized();
        ShowHint(Words::AsIs("Before"));
        EXPECT_EQ(HintOver(hint.control), hint.text) << hint.control;
    }
}

TEST_F(MainHintsTest, HasNoHintForTheDemoButton)
{
    EXPECT_EQ(HintOver("DemoBtn"), "");
}

TEST_F(MainHintsTest, ClearsTheHintOverItsBackground)
{
    for (const char* name :
         {"Corner3Pic", "Corner4Pic", "Label1", "Label5", "TrackTopLbl", "SoundStatusLbl", "StatusLbl"}) {
        ShowHint(Words::AsIs("Before"));
        EXPECT_EQ(HintOver(name), "") << name;
    }
    QWidget& bar = Control("ControlFramePic");
    for (QWidget* ground : {static_cast<QWidget*>(window.get()), &bar}) {
        ShowHint(Words::AsIs("Before"));
        MoveOverGround(*ground);
        EXPECT_EQ(TextOf("StatusLbl"), "") << ground->objectName().toStdString();
    }
    QWidget& frame = Control("StatusFramePic");
    Send(frame, QEvent::MouseMove, frame.mapToGlobal(QPointF(3, 3)), Qt::NoButton);
    EXPECT_EQ(TextOf("StatusLbl"), "Move the mouse over any button to read help clue here");
}

TEST_F(MainHintsTest, ClearsTheHintOverTheGapsOfTheTempoBar)
{
    QWidget& seconds = Control("SngDurLbl");
    QWidget& bar = *seconds.parentWidget();
    EXPECT_NE(HintOver("SngDurLbl"), "");
    QPoint gap;
    while (gap.y() < bar.height() && bar.childAt(gap))
        gap = gap.x() < bar.width() - 1 ? gap + QPoint(1, 0) : QPoint(0, gap.y() + 1);
    ASSERT_LT(gap.y(), bar.height());
    Send(bar, QEvent::MouseMove, bar.mapToGlobal(QPointF(gap)), Qt::NoButton);
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

TEST_F(MainHintsTest, ClearsTheHintWhenAButtonIsClicked)
{
    for (const char* name :
         {"BrushBtn", "EraserBtn", "PlayToolBtn", "MaximizeImgBtn", "RestoreImgBtn", "MinimizeImgBtn"}) {
        ShowHint(Words::AsIs("An older hint"));
        static_cast<QAbstractButton&>(Control(name)).click();
        EXPECT_EQ(TextOf("StatusLbl"), "") << name;
    }
}

} // namespace
} // namespace sprout
