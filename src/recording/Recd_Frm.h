// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "recording/RecordingTake.h"
#include "recording/rules/CaptureView.h"
#include "service/SoundCapture.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

class CaptureDisplay;
class RecordingBird;
class RecordingSources;
class SourceList;

/// The recording window: shows a running capture, lets the user choose its source and volume, and leaves the recording
/// in the shared arrays of `Recd`. Made for one recording; its destructor releases the microphone.
///
/// Call in this order: `InitilizeForm`, `InitilizeDriver`, `CaptureStartRemote`.
class Recd_Frm : public BandedForm {
    Q_OBJECT

public:
    explicit Recd_Frm(QWidget* parent);
    ~Recd_Frm() override;

    /// Sets the format of the recording and measures the meters.
    void InitilizeForm();
    /// Opens the microphone. Shows a message and returns false on failure.
    [[nodiscard]] bool InitilizeDriver();
    /// Starts the recording and shows the window modally until it is finished or cancelled.
    void CaptureStartRemote();

    /// After the window has closed: the recording was finished. `Recd().RecdLength` tells whether anything was
    /// recorded.
    bool Ok = false;

    /// What Escape and the close box do: cancels, but asks first if there is something to lose.
    void reject() override;

private:
    /// Opens the device; a failure is shown, and an error of the machine is thrown.
    [[nodiscard]] bool OpenCapture();
    void MakeButtons();
    void MakeBird();
    void MakeDisplay();
    SourceList& MakeSourceList();
    void MakeVolume(SourceList& list);
    void MakeTimer();
    void PlaceControls();

    void StartCapture();
    void ClickFinish();
    void ClickCancel();
    void TickCapture();
    void ShowView();

    SoundCapture& capture;
    RecordingTake take;
    CaptureView view;
    std::unique_ptr<CaptureDisplay> display;
    RecordingBird* bird = nullptr;
    RecordingSources* sources = nullptr;
    ImageButton* RecFinishBtn = nullptr;
    ImageButton* Cancel_Btn = nullptr;
    QTimer* CaptureTimer = nullptr;
};

} // namespace sprout
