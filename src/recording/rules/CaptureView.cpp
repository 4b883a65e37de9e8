// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/CaptureView.h"

#include <string_view>

#include "recording/rules/TimeText.h"

namespace sprout {

namespace {

constexpr double kSilentSeconds = 2;
constexpr std::string_view kPausedMark = " [P]";

/// Silence is not reported while a capture is not running.
bool IsSilent(const CaptureStatus& now)
{
    return now.State != CaptureState::Stopped && now.SilentSeconds >= kSilentSeconds;
}

LaterWords DoneWords(CaptureEnd end)
{
    switch (end) {
    case CaptureEnd::DiskFull:
        return Words::Later("Recording Done - the disk is full");
    case CaptureEnd::MicrophoneGone:
        return Words::Later("Recording Done - the microphone is gone");
    case CaptureEnd::TooLong:
        return Words::Later("Recording Done - it cannot become any longer");
    case CaptureEnd::None:
        break;
    }
    return Words::Later("Recording Done");
}

} // namespace

void CaptureView::Start()
{
    elapsed = 0;
    duration = "0.0";
    stateText = {};
    status = {};
    isKeeping = true;
}

bool CaptureView::Update(const CaptureStatus& now, const CapturePeaks& peaks)
{
    const bool isSilent = IsSilent(now);
    const bool isNewState = lastState != now.State;
    // Silence is reported even if no more pieces come.
    if (!isNewState && lastPieces == now.Pieces && lastSilent == isSilent)
        return false;
    elapsed = static_cast<float>(static_cast<double>(kBlockSeconds) * static_cast<double>(now.Blocks));
    duration = TimeText(elapsed);
    if (now.State == CaptureState::Paused)
        duration += kPausedMark;
    barColour = now.State == CaptureState::Recording ? kRecordingBarColour : kIdleBarColour;
    UpdateText(now, isNewState);
    UpdateMeters(peaks, now.Pieces);
    lastState = now.State;
    lastPieces = now.Pieces;
    lastSilent = isSilent;
    return true;
}

void CaptureView::UpdateText(const CaptureStatus& now, bool isNewState)
{
    if (isNewState && now.State == CaptureState::Paused)
        stateText = Words::Text("Recording Paused");
    if (isNewState && now.State == CaptureState::Recording)
        stateText = Words::Text("Now Recording");
    const bool hasRun = lastState == CaptureState::Recording || lastState == CaptureState::Paused;
    // A capture that ended between its start and the first update has run as well.
    const bool endsNow = now.State == CaptureState::Stopped && (hasRun || now.End != CaptureEnd::None);
    if (endsNow && isKeeping) {
        stateText = DoneWords(now.End);
        End();
    }
    status = IsSilent(now) ? Words::Text("%1 - I cannot hear you", stateText) : stateText;
}

void CaptureView::UpdateMeters(const CapturePeaks& peaks, std::int64_t pieces)
{
    left = {peaks.Left, loudestLeft.Note(pieces, peaks.Left), peaks.LeftOverloaded && !hasEnded};
    right = {peaks.Right, loudestRight.Note(pieces, peaks.Right), peaks.RightOverloaded && !hasEnded};
}

void CaptureView::Stop()
{
    if (duration.ends_with(kPausedMark))
        duration.resize(duration.size() - kPausedMark.size());
    if (isKeeping)
        status = DoneWords(CaptureEnd::None);
    End();
}

void CaptureView::End()
{
    isKeeping = false;
    hasEnded = true;
    left.Overloaded = false;
    right.Overloaded = false;
}

} // namespace sprout
