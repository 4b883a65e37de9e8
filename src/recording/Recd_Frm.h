// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QTimer>

#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "recording/Recd_Pics.h"
#include "recording/rules/CaptureView.h"
#include "recording/rules/Volume.h"
#include "service/Desktop.h"
#include "service/SoundCapture.h"
#include "ui/BandedForm.h"
#include "ui/SliderPointer.h"

namespace sprout {

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

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeButtons();
    void MakeBird();
    void MakeLabels();
    void MakePictures();
    void MakeSourceList();
    void MakeVolume();
    void MakeTimers();
    void PlaceControls();

    void StartCapture();
    void StopCapture();
    void ClickFinish();
    void ClickCancel();
    void TickCapture();
    void UpdateRecordingStatus();
    void ShowView();
    void TickAnim();

    void FollowSources();
    void LoadMixerSources();
    void ShowLines(const SourceLines& sources);
    void AddLine(const QString& name);
    void ClickSource(int row);
    void ShowRecordVolume(std::int32_t value);
    void ShowPercent(std::int32_t percent);
    void TakePercent(std::int32_t percent);
    void ClickSoundControl(SoundControl control);

    SoundCapture& capture;
    CaptureView view;
    std::filesystem::path leftFile; ///< empty if nothing was started
    std::filesystem::path rightFile;
    bool filesAreOurs = false; ///< the capture has handed them over, but they are not loaded yet
    std::vector<SourceLine> lines;
    std::int32_t selectedSource = -1;
    std::uint64_t sourceChanges = 0;
    int animCounter = 0;

    ImageButton* RecFinishBtn = nullptr;
    ImageButton* Cancel_Btn = nullptr;
    std::array<ImageButton*, 2> RecSrcBtn{};
    std::array<QLabel*, 2> AnimImg{};
    QLabel* Dur_Lbl = nullptr;
    QLabel* Rec_Stat_Lbl = nullptr;
    QLabel* VolumeLbl = nullptr;
    LevelMeterPic* RecShowLPic = nullptr;
    LevelMeterPic* RecShowRPic = nullptr;
    RecordingProgressPic* RecProgressPic = nullptr;
    QComboBox* MixerRecSrcCmb = nullptr;
    QLabel* VolumeSliderImg = nullptr;
    SliderPointer* VolumePrtImg = nullptr;
    QTimer* CaptureTimer = nullptr;
    QTimer* AnimTimer = nullptr;
};

} // namespace sprout
