// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayDllClass.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <exception>
#include <new>
#include <span>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "core/Tell.h"
#include "sound/PlayShared.h"
#include "waves/WaveBytes.h"

namespace sprout {

namespace {

constexpr double kTailSeconds = 0.05;

constexpr std::string_view kPlayFailed = "Could not Play Sound\r\n"
                                         "Driver busy or not ready\r\n"
                                         "Check whether sound driver is ON (in options window)";

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
void PlayDllClass::Guarded(std::string_view errorTitle, Operation operation) const
{
    try {
        operation();
    } catch (const std::exception& error) {
        Raise(ErrorText(error), errorTitle);
    }
}

void PlayDllClass::DxObj(std::int32_t& windowHandle)
{
    PlayDx9Cls.reset();
    Driver = 0;
    PlayShared().PlayState = PlayState::Stopped;
    if (windowHandle <= 0)
        return;
    PlayDx9Cls = std::make_unique<PlayDx9Class>(
        [this](std::string_view prompt, std::string_view title) { PlayDx9Cls_MsgBoxOb(prompt, title); });
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
    Guarded("Stop Play error", [this] {
        if (Driver == 1)
            PlayDx9Cls->StopPlay();
    });
}

void PlayDllClass::PlayContinue()
{
    Guarded("Play Continue error", [this] {
        if (NothingWritten())
            SendStatus("Nothing to Continue");
        else if (Driver == 1)
            PlayDx9Cls->PlayContinue();
    });
}

void PlayDllClass::SetLooping(Loop loop)
{
    Guarded("", [this, loop] {
        if (Driver == 1)
            PlayDx9Cls->LetLooping(loop);
    });
}

void PlayDllClass::PlayReplay()
{
    Guarded("Play Replay error", [this] {
        if (NothingWritten())
            SendStatus("Nothing to Replay");
        else if (Driver == 1)
            PlayDx9Cls->PlayReplay();
    });
}

void PlayDllClass::UpdatePlayPosition()
{
    Guarded("", [this] {
        if (Driver == 1)
            PlayDx9Cls->UpdatePlayPosition();
    });
}

void PlayDllClass::PlayPause()
{
    Guarded("Play Pause error", [this] {
        if (Driver == 1)
            PlayDx9Cls->PlayPause();
    });
}

PlayResult PlayDllClass::WriteWaveMemo(const WaveData& wave, PlayNow playNow, Loop loop)
{
    PlayResult result = PlayResult::Refused;
    try {
        result = WriteAndPlay(wave, playNow, loop);
    } catch (const std::exception& error) {
        Raise(ErrorText(error), "Play Wave error");
        SendStatus("Failed to play");
        if (dynamic_cast<const std::bad_alloc*>(&error))
            throw; // the sound itself is fine, so the user is told
    }
    return result;
}

PlayResult PlayDllClass::WriteAndPlay(const WaveData& wave, PlayNow playNow, Loop loop)
{
    SendStatus("Writing to Play Buffer");
    if (wave.Length == 0)
        return Refuse("Zero size wave found", playNow);
    if (!IsKnownFormat(wave))
        return Refuse("Format not Known to write wave file", playNow);
    FillPlayBuffer(wave, loop == Loop::Yes ? 0 : RoundHalfEven(wave.Rate * kTailSeconds));
    if (playNow == PlayNow::Yes)
        return PlayWritten(loop);
    SendStatus("Done");
    return PlayResult::Kept;
}

PlayResult PlayDllClass::Refuse(std::string_view prompt, PlayNow playNow)
{
    Raise(prompt, "Play wave error");
    if (playNow == PlayNow::Yes)
        StopPlay();
    SendStatus("Play Failed");
    return PlayResult::Refused;
}

PlayResult PlayDllClass::PlayWritten(Loop loop)
{
    const bool started = Driver == 1 && PlayDx9Cls->PlayMe(loop);
    if (started) {
        PlayDx9Cls->LetLooping(loop);
    } else {
        SendStatus("Play Failed");
        Raise(kPlayFailed, "Play Failed");
    }
    Raise("S1", "");
    return started ? PlayResult::Started : PlayResult::NoDevice;
}

void PlayDllClass::PlayDx9Cls_MsgBoxOb(std::string_view prompt, std::string_view title) const
{
    if (prompt != "S2")
        Tell(title, prompt);
}

void PlayDllClass::Raise(std::string_view prompt, std::string_view title) const
{
    if (MsgBoxOb)
        MsgBoxOb(prompt, title);
}

} // namespace sprout
