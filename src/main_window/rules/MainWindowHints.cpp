// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/MainWindowHints.h"

#include <algorithm>
#include <array>

#include "ui/rules/HintRow.h"

namespace sprout {

namespace {

constexpr LaterWords kTitleHint = Words::Later("Song name, use the 'Change button' to change it");
constexpr LaterWords kCreatorHint = Words::Later("Song created by.., use the 'Change button' to enter your name there");

constexpr std::array kMainWindowHints{
    HintRow{"AboutBtn", Words::Later("About button, use it to read about Tonquill")},
    HintRow{"BrushBtn", Words::Later("Paint brush button, use this to choose paint brush for painting the tracks")},
    HintRow{"CloseImgBtn", Words::Later("Close button")},
    HintRow{"EmailBtn", Words::Later("Email Song button, use it to send this song to your friend by email")},
    HintRow{"EraserBtn", Words::Later("Eraser button, use this to choose eraser for painting the tracks")},
    HintRow{"HelpBtn", Words::Later("Help button, use it to see help")},
    HintRow{"MaximizeImgBtn", Words::Later("Maximize button")},
    HintRow{"MinimizeImgBtn", Words::Later("Minimize button")},
    HintRow{"NewBtn", Words::Later("New button, use it to start making your own new song")},
    HintRow{"OpenBtn", Words::Later("Open button, use it to open an existing song")},
    HintRow{"PlayAllBtn", Words::Later("Play all button, use it to play the full song (all tracks)")},
    HintRow{"PlayStopBtn", Words::Later("Stop play button, use it to stop any playing sound")},
    HintRow{"PlayToolBtn", Words::Later("Play Tool button, choose this button and click on track to play from there")},
    HintRow{"RestoreImgBtn", Words::Later("Restore button")},
    HintRow{"SaveBtn", Words::Later("Save button, use it to save the song you made")},
    HintRow{"SngCreateLbl", kCreatorHint},
    HintRow{"SngCreate2Lbl", kCreatorHint},
    HintRow{"SngDurLbl", Words::Later("Song duration in seconds")},
    HintRow{"SngTitleLbl", kTitleHint},
    HintRow{"SngTitle2Lbl", kTitleHint},
    HintRow{"SongTitleChgBtn", Words::Later("Change button, use it to change 'Song name' and 'Created by'")},
    HintRow{"StatusFramePic", kStatusFrameHint},
    HintRow{"TempoLbl", Words::Later("Tempo percentage, use the tempo slider to change")},
    HintRow{"TempoPrtImg", Words::Later("Slide this pointer to adjust tempo")},
    HintRow{"TempoSliderImg", Words::Later("Tempo slider, use it to change the speed of the song")},
    HintRow{"TrackAddBtn", Words::Later("Add Music track button. Use it to add a new music track")},
    HintRow{"TrackAddRecBtn",
            Words::Later("Add Audio track button. Use it to record your voice sound or choose a wav file to add "
                         "as an audio track")},
    HintRow{"TrackAudioBtn", Words::Later("Recorded button, Click to edit your recording on this track")},
    HintRow{"TrackDeleteBtn", Words::Later("Delete button, Click to delete this track")},
    HintRow{"TrackPlayBtn", Words::Later("Track play button, use it to test play this track")},
    HintRow{"TrackTuneBtn", Words::Later("Tune button, Click to choose a tune, keep mouse over it to play")},
    HintRow{"WelcomeCard", Words::Later("Click here to put this card away")},
};

} // namespace

LaterWords MainWindowHint(std::string_view name)
{
    const auto* row = std::find_if(kMainWindowHints.begin(), kMainWindowHints.end(),
                                   [name](const HintRow& candidate) { return candidate.name == name; });
    return row == kMainWindowHints.end() ? LaterWords() : row->hint;
}

} // namespace sprout
