// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramWindows.h"

#include "beat_window/ChooseBeat.h"
#include "demo/DemoFolder.h"
#include "demo/Demo_frm.h"
#include "recording/AudioEditFrm.h"
#include "recording/Recd_Frm.h"
#include "recording/Recd_Mod.h"
#include "sharing/EmailSong.h"
#include "sharing/ExportSong.h"
#include "song_window/SongSelFrm.h"
#include "sound/PlayMod.h"
#include "tune_window/OpenTuneWindow.h"
#include "ui/forms/Dialogs.h"
#include "ui/help/HelpFrm.h"

namespace sprout {

namespace {

std::optional<std::string> ChosenName(SongSelFrm& chooser)
{
    chooser.ShowModal();
    return chooser.Ok ? std::optional(chooser.ChosenName) : std::nullopt;
}

} // namespace

ProgramWindows::ProgramWindows() = default;

ProgramWindows::~ProgramWindows() = default;

bool ProgramWindows::OpenTuneWindow(Tune& tune, bool& newFlag)
{
    return sprout::OpenTuneWindow(tune, newFlag);
}

void ProgramWindows::UpdateThisTune()
{
    sprout::UpdateThisTune();
}

bool ProgramWindows::ChooseBeat(std::string& name)
{
    return sprout::ChooseBeat(name);
}

std::optional<WaveData> ProgramWindows::RecordSound()
{
    Recd_Frm recorder(WindowInFront());
    recorder.InitilizeForm();
    if (!recorder.InitilizeDriver())
        return std::nullopt;
    recorder.CaptureStartRemote();
    return recorder.Ok ? std::optional(TakeRecordedWave()) : std::nullopt;
}

bool ProgramWindows::EditTrack(std::int32_t track)
{
    AudioEditFrm editor(WindowInFront());
    editor.UpdateFormWithCurrentTrack(track);
    editor.ShowModal();
    Player().UpdatePlayPosition();
    return editor.TrackWasChanged();
}

void ProgramWindows::UpdatePlayPointer()
{
    sprout::UpdatePlayPointer();
}

std::optional<std::string> ProgramWindows::ChooseSongToOpen(QWidget& owner)
{
    SongSelFrm chooser(&owner);
    chooser.InitilizeThisWindow(SongSelMode::Open);
    return ChosenName(chooser);
}

std::optional<std::string> ProgramWindows::ChooseNameToSave(QWidget& owner, std::string_view name)
{
    SongSelFrm chooser(&owner);
    chooser.InitilizeThisWindow(SongSelMode::Save);
    chooser.SetSongName(name);
    return ChosenName(chooser);
}

bool ProgramWindows::SaveSongAsSound(SoundFileKind kind)
{
    return sprout::SaveSongAsSound(kind);
}

std::vector<std::string> ProgramWindows::DemoNames()
{
    return sprout::DemoNames();
}

void ProgramWindows::ShowDemo(QWidget& owner, std::string_view name)
{
    Demo_frm(&owner, name).ShowModal();
}

void ProgramWindows::ShowHelp()
{
    sprout::ShowHelp();
}

void ProgramWindows::EmailSong()
{
    if (!emailSong)
        emailSong = std::make_unique<sprout::EmailSong>(nullptr);
    emailSong->EmailBtn();
}

void ProgramWindows::StopEmailSong()
{
    if (emailSong)
        emailSong->StopWaiting();
}

} // namespace sprout
