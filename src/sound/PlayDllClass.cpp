// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayDllClass.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <exception>
#include <new>
#include <span>

#include "base/Errors.h"
#include "base/Guarded.h"
#include "base/Numbers.h"
#include "core/Tell.h"
#include "sound/PlayShared.h"
#include "waves/WaveBytes.h"

namespace sprout {

namespace {

constexpr double kTailSeconds = 0.05;

constexpr LaterWords kPlayFailed = Words::Later("Could not Play Sound\r\n"
                                                "Driver busy or not ready\r\n"
                                                "Check whether sound driver is ON (in options window)");

bool NothingWritten()
{
    return PlayShared().PlayBuffer.size() <= kWaveHeadBytes;
}

/// Writes `wave` into the play buffer, followed by a tail.
void FillPlayBuffer(const WaveData& wave, std::int32_t tailFrames)
{
    CheckFrames(wave);
    PlayModState& play = PlayShared();
    const std::int32_t frameBytes = FrameBytes(wave);
    const double frames = static_cast<double>(wave.Length) + tailFrames;
    // The sizes in the head have 32 bits.
    const std::int32_t fileBytes = RoundHalfEven(frames * frameBytes + kWaveHeadBytes);
    // The tail is not cleared: whatever an earlier, longer play left there sounds again.
    play.PlayBuffer.reserve(static_cast<std::size_t>(fileBytes));
    play.PlayBuffer.resize(static_cast<std::size_t>(fileBytes));
    auto head = WaveHead(wave);
    SetWaveSizes(head, fileBytes - static_cast<std::int32_t>(kWaveHeadBytes));
    std::copy(head.begin(), head.end(), play.PlayBuffer.begin());
    const std::size_t waveBytes = static_cast<std::size_t>(frameBytes) * static_cast<std::size_t>(wave.Length);
    PackFrames(wave, 1, std::span(play.PlayBuffer).subspan(kWaveHeadBytes, waveBytes));
    play.PlayBufBits = wave.Bits;
    play.PlayBufChannels = wave.Channels;
    play.PlayBufRate = wave.Rate;
    play.PlayBufLength = wave.Length + tailFrames;
}

} // namespace

template <class Operation>
void PlayDllClass::Guarded(const Words& errorTitle, Operation operation) const
{
    GuardedBy([&](const std::exception& error) { Raise(ErrorWords(error), errorTitle); }, operation);
}

void PlayDllClass::DxObj(std::int32_t& windowHandle)
{
    PlayDx9Cls.reset();
    Driver = 0;
    PlayShared().PlayState = PlayState::Stopped;
    if (windowHandle <= 0)
        return;
    PlayDx9Cls = std::make_unique<PlayDx9Class>(
        [this](const Words& prompt, const Words& title) { PlayDx9Cls_MsgBoxOb(prompt, title); });
    PlayDx9Cls->PutONDx9Ds(windowHandle);
    Driver = 1;
    windowHandle = 1;
}

std::vector<std::int32_t> PlayDllClass::GetLastPlayedStream() const
{
    if (NothingWritten())
        return {0};
    const std::vector<std::byte>& buffer = PlayShared().PlayBuffer;
    std::vector<std::int32_t> words(buffer.size() / sizeof(std::int32_t) + 1);
    std::memcpy(words.data(), buffer.data(), buffer.size());
    return words;
}

void PlayDllClass::StopPlay()
{
    Guarded(Words::Text("Stop Play error"), [this] {
        if (Driver == 1)
            PlayDx9Cls->StopPlay();
    });
}

void PlayDllClass::PlayContinue()
{
    Guarded(Words::Text("Play Continue error"), [this] {
        if (NothingWritten())
            SendStatus(Words::Text("Nothing to Continue"));
        else if (Driver == 1)
            PlayDx9Cls->PlayContinue();
    });
}

void PlayDllClass::SetLooping(Loop loop)
{
    Guarded({}, [this, loop] {
        if (Driver == 1)
            PlayDx9Cls->LetLooping(loop);
    });
}

void PlayDllClass::PlayReplay()
{
    Guarded(Words::Text("Play Replay error"), [this] {
        if (NothingWritten())
            SendStatus(Words::Text("Nothing to Replay"));
        else if (Driver == 1)
            PlayDx9Cls->PlayReplay();
    });
}

void PlayDllClass::UpdatePlayPosition()
{
    Guarded({}, [this] {
        if (Driver == 1)
            PlayDx9Cls->UpdatePlayPosition();
    });
}

void PlayDllClass::PlayPause()
{
    Guarded(Words::Text("Play Pause error"), [this] {
        if (Driver == 1)
            PlayDx9Cls->PlayPause();
    });
}

PlayResult PlayDllClass::WriteWaveMemo(const WaveData& wave, PlayNow playNow, Loop loop)
{
    PlayResult result = PlayResult::Refused;
    const auto tell = [this](const std::exception& error) {
        Raise(ErrorWords(error), Words::Text("Play Wave error"));
        SendStatus(Words::Text("Failed to play"));
        if (dynamic_cast<const std::bad_alloc*>(&error))
            throw; // the sound itself is fine, so the user is told
    };
    GuardedBy(tell, [&] { result = WriteAndPlay(wave, playNow, loop); });
    return result;
}

PlayResult PlayDllClass::WriteAndPlay(const WaveData& wave, PlayNow playNow, Loop loop)
{
    SendStatus(Words::Text("Writing to Play Buffer"));
    if (wave.Length == 0)
        return Refuse(Words::Text("Zero size wave found"), playNow);
    if (!IsKnownFormat(wave))
        return Refuse(Words::Text("Format not Known to write wave file"), playNow);
    FillPlayBuffer(wave, loop == Loop::Yes ? 0 : RoundHalfEven(wave.Rate * kTailSeconds));
    if (playNow == PlayNow::Yes)
        return PlayWritten(loop);
    SendStatus(Words::Text("Done"));
    return PlayResult::Kept;
}

PlayResult PlayDllClass::Refuse(const Words& prompt, PlayNow playNow)
{
    Raise(prompt, Words::Text("Play wave error"));
    if (playNow == PlayNow::Yes)
        StopPlay();
    SendStatus(Words::Text("Play Failed"));
    return PlayResult::Refused;
}

PlayResult PlayDllClass::PlayWritten(Loop loop)
{
    const bool started = Driver == 1 && PlayDx9Cls->PlayMe(loop);
    if (started) {
        PlayDx9Cls->LetLooping(loop);
    } else {
        SendStatus(Words::Text("Play Failed"));
        Raise(kPlayFailed, Words::Text("Play Failed"));
    }
    Raise(kPlayCallEnded, {});
    return started ? PlayResult::Started : PlayResult::NoDevice;
}

void PlayDllClass::PlayDx9Cls_MsgBoxOb(const Words& prompt, const Words& title) const
{
    if (prompt != kStatusPrompt)
        Tell(title, prompt);
}

void PlayDllClass::Raise(const Words& prompt, const Words& title) const
{
    if (MsgBoxOb)
        MsgBoxOb(prompt, title);
}

} // namespace sprout
