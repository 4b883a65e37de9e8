// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/AudioTrackCommands.h"

#include <QFile>

#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Shared.h"
#include "core/TrackList.h"
#include "sound/ChosenSound.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/FileDialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/forms/MessageForms.h"
#include "ui/widgets/Hints.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

enum class AudioType { Cancelled = 0, Recording = 1, File = 2 };

AudioType AskAudioType()
{
    Msg3BtnFrm question(WindowInFront(), Words::Text("Choose Audio Type to add:"));
    question.SetCaption(Words::Text(" Add Audio Track"));
    return static_cast<AudioType>(question.ShowModal());
}

std::optional<fs::path> AskForSoundFile()
{
    return ChooseFileToOpen({Words::Text("Please select a wav file to open"), "", "", "wav",
                             Words::Text("Wave File(*.wav)|*.wav|All files|*.*|%1", Words(kOtherSoundsFilter)), 3});
}

bool IsTooLong(const WaveData& wave)
{
    return static_cast<double>(wave.Length) / wave.Rate > kLongestAudioSeconds;
}

void TellTooLong()
{
    ShowMessage(Words::Text("This file is too long."), Words::Text("Use less then 2 minutes audio."),
                Words::Text("Load wav file failed."));
}

/// The wave of a file, or only its header, if it can become a track; else the reason was shown.
std::optional<WaveData> ReadTrackWave(const fs::path& file, ReadSamples samples)
{
    std::optional<WaveData> wave = TryLoadWaveFile(file, samples);
    if (!wave)
        return std::nullopt;
    // Headers lie, and a file may change between the two reads.
    if (wave->Length < 1) {
        ShowMessage(Words::Text("No wave Data found in file"));
        return std::nullopt;
    }
    if (IsTooLong(*wave)) {
        TellTooLong();
        return std::nullopt;
    }
    return wave;
}

std::optional<WaveData> LoadTrackWave(const fs::path& file)
{
    const ChosenSound sound = OpenChosenSound(file, kLongestAudioSeconds, TooLong::Refuse);
    if (sound.IsTooLong) {
        TellTooLong();
        return std::nullopt;
    }
    if (!ReadTrackWave(sound.WaveFile, ReadSamples::HeaderOnly))
        return std::nullopt;
    return ReadTrackWave(sound.WaveFile, ReadSamples::Yes);
}

/// The dropped local file; if there is none, the reason was shown.
std::optional<fs::path> DroppedFile(const QList<QUrl>& places)
{
    std::error_code error;
    if (places.size() != 1) {
        ShowMessage(Words::Text("Please drop one sound at a time."));
        return std::nullopt;
    }
    if (!places.front().isLocalFile()) {
        ShowMessage(Words::Text("This sound is not on this computer."),
                    Words::Text("Save it here first and drop it then."));
        return std::nullopt;
    }
    fs::path file(QFile::encodeName(places.front().toLocalFile()).toStdString());
    if (!fs::is_regular_file(file, error)) {
        ShowMessage(Words::Text("This is not a sound file."), Words::AsIs(PathText(file.filename())));
        return std::nullopt;
    }
    return file;
}

} // namespace

AudioTrackCommands::AudioTrackCommands(TrackCanvas& trackCanvas) : canvas(trackCanvas) {}

void AudioTrackCommands::TrackAddRecBtn()
{
    ShowHint({});
    // A tune that plays because the pointer is over it must not be heard in a recording.
    canvas.HideTrackButtons();
    Guarded([this] {
        switch (AskAudioType()) {
        case AudioType::Recording:
            AddRecording();
            break;
        case AudioType::File:
            AddChosenFile();
            break;
        default:
            break;
        }
    });
}

void AudioTrackCommands::AddRecording()
{
    StopPlay(canvas);
    std::optional<WaveData> wave = TheWindows().RecordSound();
    if (!wave)
        return;
    if (wave->Length < 1)
        return ShowMessage(Words::Text("Nothing was recorded."));
    AddTrack(std::move(*wave));
}

void AudioTrackCommands::AddChosenFile()
{
    StopPlay(canvas);
    if (const std::optional<fs::path> file = AskForSoundFile())
        AddFile(*file);
}

void AudioTrackCommands::AddFile(const fs::path& file)
{
    try {
        if (std::optional<WaveData> wave = LoadTrackWave(file))
            AddTrack(std::move(*wave));
    } catch (const WorkStopped&) {
        return; // the song is unchanged
    }
}

void AudioTrackCommands::AddTrack(WaveData wave)
{
    AddAudioTrack(std::move(wave));
    canvas.ShowAddedTrack();
}

void AudioTrackCommands::TrackAudioBtn()
{
    ShowHint({});
    Guarded([this] {
        const std::int32_t track = canvas.HoverTrack();
        canvas.HideTrackButtons();
        if (track < 1 || track > Shared().Song.TrackCount)
            return;
        StopPlay(canvas);
        if (TheWindows().EditTrack(track))
            canvas.DrawTrackOne(track);
    });
}

void AudioTrackCommands::AddDropped(const QList<QUrl>& places)
{
    Guarded([&] {
        const std::optional<fs::path> file = DroppedFile(places);
        if (!file)
            return;
        StopPlay(canvas);
        AddFile(*file);
    });
}

} // namespace sprout
