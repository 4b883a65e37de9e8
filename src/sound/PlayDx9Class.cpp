// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayDx9Class.h"

#include <exception>
#include <new>
#include <span>
#include <string>
#include <utility>

#include "base/Log.h"
#include "base/Numbers.h"
#include "service/Services.h"
#include "sound/PlayShared.h"
#include "waves/WaveBytes.h"

namespace sprout {

PlayDx9Class::PlayDx9Class(MsgBoxObEvent msgBoxOb) : MsgBoxOb(std::move(msgBoxOb)) {}

PlayDx9Class::~PlayDx9Class()
{
    WaveDriverHandle.reset();
    PlayShared().PlayState = PlayState::Stopped;
}

bool PlayDx9Class::PlayMe(Loop loop)
{
    try {
        return PlayBufferOnDevice(loop);
    } catch (const std::bad_alloc&) {
        throw; // the device is fine
    } catch (const std::exception& error) {
        LogFailure("Playing on the sound device", error);
        // The caller reports it in its own words.
        return false;
    }
}

bool PlayDx9Class::PlayBufferOnDevice(Loop loop)
{
    PlayModState& play = PlayShared();
    Stop();
    const std::int32_t bytes =
        RoundHalfEven(static_cast<double>(play.PlayBufLength) * play.PlayBufChannels * play.PlayBufBits / 8);
    WaveDriverHandle = TheServices().sound->Open(std::move(WaveDriverHandle), WindowHandle,
                                                 {play.PlayBufChannels, play.PlayBufRate, play.PlayBufBits}, bytes);
    if (!WaveDriverHandle) {
        SendStatus(Words::Text("Play Failed"));
        return false;
    }
    play.PlayState = PlayState::Stopped;
    WaveDriverHandle->Load(std::span(play.PlayBuffer).subspan(kWaveHeadBytes, static_cast<std::size_t>(bytes)));
    LoopCount = 0;
    WaveDriverHandle->Start(StartFrom::Beginning, loop);
    play.PlayState = loop == Loop::Yes ? PlayState::PlayingLoop : PlayState::Playing;
    SendStatus(loop == Loop::Yes ? Words::Text("Playing Loop%1", LoopCount) : Words::Text("Playing"));
    return true;
}

void PlayDx9Class::PlayContinue()
{
    PlayModState& play = PlayShared();
    if (WaveDriverHandle)
        WaveDriverHandle->Start(StartFrom::WhereItStopped, play.PlayLooping ? Loop::Yes : Loop::No);
    play.PlayState = play.PlayLooping ? PlayState::PlayingLoop : PlayState::Playing;
}

void PlayDx9Class::PlayReplay() {}

void PlayDx9Class::LetLooping(Loop loop)
{
    if (WaveDriverHandle)
        WaveDriverHandle->SetLooping(loop);
    PlayShared().PlayState = loop == Loop::Yes ? PlayState::PlayingLoop : PlayState::Playing;
}

void PlayDx9Class::UpdatePlayPosition()
{
    PlayModState& play = PlayShared();
    const SoundPlace place = WaveDriverHandle ? WaveDriverHandle->Place() : SoundPlace();
    play.PlayCursor = play.PlayOffset + place.Cursor;
    if (!place.Playing) {
        play.PlayState = PlayState::Stopped;
        play.PlayCursor = 0;
    }
}

void PlayDx9Class::PlayPause()
{
    if (WaveDriverHandle)
        WaveDriverHandle->Stop();
    PlayShared().PlayState = PlayState::Paused;
}

void PlayDx9Class::StopPlay()
{
    Stop();
    SendStatus(Words::Text("Stopped"));
}

void PlayDx9Class::PutONDx9Ds(std::int32_t windowHandle)
{
    WindowHandle = windowHandle;
}

void PlayDx9Class::Stop()
{
    if (WaveDriverHandle)
        WaveDriverHandle->Stop();
    PlayShared().PlayState = PlayState::Stopped;
}

void PlayDx9Class::SendStatus(const Words& status) const
{
    if (MsgBoxOb)
        MsgBoxOb(kStatusPrompt, status);
}

} // namespace sprout
