// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RecordingSheets.h"

#include <QApplication>
#include <QTimer>
#include <QTimerEvent>

#include "core/Shared.h"
#include "pictures/SheetPicture.h"
#include "recording/Recd_Frm.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "ui/forms/QtScreen.h"

namespace sprout {

namespace {

/// A capture that reports what it is given.
class DrawnCapture : public SoundCapture {
public:
    [[nodiscard]] CaptureOpening Open() override { return CaptureOpening::Ready; }
    [[nodiscard]] bool Start(const std::filesystem::path&, const std::filesystem::path&) override { return true; }
    void Stop() override {}
    void Release() override {}
    [[nodiscard]] CaptureStatus Status() override { return status; }
    [[nodiscard]] CapturePeaks Peaks() override { return peaks; }
    [[nodiscard]] std::optional<SoundSources> ListSources() override { return sources; }
    [[nodiscard]] std::uint64_t SourceChanges() override { return 0; }
    void SelectSource(std::int32_t) override {}
    void SetVolume(std::int32_t, std::int32_t) override {}
    void DeleteLeftFiles(const std::filesystem::path&) override {}

    CaptureStatus status;
    CapturePeaks peaks;
    std::optional<SoundSources> sources;
};

struct DrawnState {
    const char* name = "";
    CaptureStatus status;
    CapturePeaks peaks;
    std::optional<SoundSources> sources;
    bool hops = false;
};

void Tick(const Recd_Frm& form, const char* timer)
{
    auto* ticking = form.findChild<QTimer*>(QString::fromLatin1(timer));
    QTimerEvent tick(ticking->timerId());
    QApplication::sendEvent(ticking, &tick);
}

void DrawState(const DrawnState& state, DrawnCapture& capture, const QString& folder)
{
    capture.status = {};
    capture.peaks = state.peaks;
    capture.sources = state.sources;
    Recd_Frm form(nullptr);
    form.InitilizeForm();
    const auto draw = [&] {
        capture.status = {CaptureState::Recording, 1, 0, 1, 0, CaptureEnd::None};
        Tick(form, "CaptureTimer");
        capture.status = state.status;
        Tick(form, "CaptureTimer");
        if (state.hops)
            Tick(form, "AnimTimer");
        SaveSheet(form, folder, QString::fromLatin1(state.name));
        form.done(0);
    };
    if (!form.InitilizeDriver())
        return;
    QTimer::singleShot(0, &form, draw);
    form.CaptureStartRemote();
}

} // namespace

void DrawRecordingSheets(const QString& folder)
{
    DrawnCapture capture;
    QtScreen screen;
    TheServices().capture = &capture;
    TheServices().screen = &screen;
    const SoundSources one{{{"Built-in Microphone", 45000}}, 0};
    const SoundSources many{
        {{"A headset whose maker gave it a name that is far too long to fit on one line", 65535}, {"Webcam", 20000}},
        0};
    const DrawnState states[] = {
        {"recording-runs", {CaptureState::Recording, 400, 0, 317, 0, CaptureEnd::None}, {19000, 23000}, one, true},
        {"recording-loud",
         {CaptureState::Recording, 400, 0, 1000, 0, CaptureEnd::None},
         {32767, 32767, true, true},
         many},
        {"recording-silent", {CaptureState::Recording, 400, 0, 40, 2.5, CaptureEnd::None}, {}, one},
        {"recording-paused", {CaptureState::Paused, 400, 0, 18999, 2.5, CaptureEnd::None}, {}, one},
        {"recording-gone", {CaptureState::Stopped, 400, 0, 90, 0, CaptureEnd::MicrophoneGone}, {6000, 300}, {}},
    };
    for (const DrawnState& state : states)
        DrawState(state, capture, folder);
    TheServices().capture = nullptr;
    TheServices().screen = nullptr;
}

} // namespace sprout
