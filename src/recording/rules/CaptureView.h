// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Words.h"
#include "recording/rules/Meter.h"
#include "service/CaptureRecords.h"

namespace sprout {

/// Seconds in one counted block of a capture.
inline constexpr float kBlockSeconds = 0.2F;

/// Colours of a meter's bar, 0x00BBGGRR.
inline constexpr std::int32_t kRecordingBarColour = 0x0000FF;
inline constexpr std::int32_t kIdleBarColour = 0xFF0000;

/// One of the two level meters.
struct MeterView {
    std::int32_t Peak = 0;    ///< 0 to 32767
    std::int32_t Loudest = 0; ///< of the last second
    bool Overloaded = false;  ///< three samples in a row were at full scale; kept until the capture ends
    friend bool operator==(const MeterView&, const MeterView&) = default;
};

/// What the recording window shows of a capture, and what it remembers between two updates.
class CaptureView {
public:
    /// Recording has started. The status stays blank until the first frame is kept.
    void Start();
    /// Takes the current state of the capture. Returns false if nothing is new and nothing needs drawing.
    bool Update(const CaptureStatus& status, const CapturePeaks& peaks);
    /// The user has stopped recording.
    void Stop();

    [[nodiscard]] const std::string& Duration() const { return duration; }
    [[nodiscard]] const Words& Status() const { return status; }
    [[nodiscard]] std::int32_t BarColour() const { return barColour; }
    [[nodiscard]] const MeterView& Left() const { return left; }
    [[nodiscard]] const MeterView& Right() const { return right; }
    /// Seconds recorded so far.
    [[nodiscard]] float Elapsed() const { return elapsed; }
    /// True from `Start` until recording stops, by the user or by itself.
    [[nodiscard]] bool IsKeeping() const { return isKeeping; }

private:
    void UpdateText(const CaptureStatus& now, bool isNewState);
    void UpdateMeters(const CapturePeaks& peaks, std::int64_t pieces);
    void End();

    std::optional<CaptureState> lastState;
    std::int64_t lastPieces = 0;
    bool lastSilent = false;
    std::string duration;
    Words stateText; ///< the status without silence
    Words status;
    std::int32_t barColour = kIdleBarColour;
    MeterView left;
    MeterView right;
    LoudestOfSecond loudestLeft;
    LoudestOfSecond loudestRight;
    float elapsed = 0;
    bool isKeeping = false;
    bool hasEnded = false;
};

} // namespace sprout
