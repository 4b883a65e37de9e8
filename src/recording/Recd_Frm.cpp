// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Frm.h"

#include <QTimer>

#include <array>
#include <exception>
#include <string>

#include "base/Errors.h"
#include "base/Guarded.h"
#include "base/Product.h"
#include "core/Busy.h"
#include "recording/CaptureDisplay.h"
#include "recording/Recd_Mod.h"
#include "recording/RecordingBird.h"
#include "recording/RecordingSources.h"
#include "recording/SourceList.h"
#include "service/Desktop.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"
#include "ui/widgets/SliderPointer.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kCaptureMilliseconds = 40;
constexpr float kWorthAsking = 2; ///< seconds; longer recordings are not discarded without a question

constexpr int kFormWidth = 600;
constexpr QRect kBirdPlace{16, 10, 128, 128}; // positions count from the band's lower edge
constexpr QRect kMicrophonePlace{16, 194, 32, 32};
constexpr QRect kSourcesPlace{58, 192, 462, 36};
constexpr QRect kRecordControlPlace{536, 186, 48, 48};
constexpr QRect kMicrophoneVolumePlace{16, 254, 32, 32};
constexpr QRect kSliderPlace{58, 250, 380, 40};
constexpr QRect kPercentPlace{450, 250, 70, 40};
constexpr QRect kPlayControlPlace{536, 246, 48, 48};
constexpr int kButtonsTop = 312;
constexpr int kButtonsGap = 16;
constexpr int kBelowButtons = 14;

constexpr QSize kVolumePointerSize{34, 40};
constexpr QSize kVolumePointerPicture{30, 35};

constexpr LaterWords kControlHint = Words::Later("This will open the recording control");

/// A rectangle in the form's body.
QRect BodyRect(const QRect& place)
{
    return place.translated(0, kBandHeight);
}

/// Opens a sound control of the desktop, or tells which programs it needs.
void OpenSoundControl(SoundControl control)
{
    Guarded([control] {
        Words names;
        for (const std::string& name : TheServices().desktop->OpenSoundControl(control))
            names = names.IsBlank() ? Words::AsIs(name) : Words::Text("%1 or %2", names, name);
        if (names.IsBlank())
            return;
        TheServices().messages->MessageBox(
            {}, Words::Text("The program %1 is not found,\r\nthat is needed to set recording sound source\r\nPlease "
                            "set recording source using volume control in the task bar.",
                            names));
    });
}

} // namespace

Recd_Frm::Recd_Frm(QWidget* parent) : BandedForm(parent), capture(*TheServices().capture), take(capture)
{
    setObjectName(QStringLiteral("Recd_Frm"));
    SetCaption(Words::Text(" %1 - Record Audio", kProductName));
    MakeButtons();
    MakeBird();
    MakeDisplay();
    MakeVolume(MakeSourceList());
    MakeTimer();
    PlaceControls();
    sources->LoadMixerSources();
}

Recd_Frm::~Recd_Frm() = default;

void Recd_Frm::MakeButtons()
{
    RecFinishBtn = &AddWordButton({"RecFinishBtn", Words::Later("Finish"),
                                   Words::Later("This will stop and bring the recording to track"), Plate::Word,
                                   kDeepLeaf, "WordFinish"},
                                  [this] { ClickFinish(); });
    RecFinishBtn->setFocus();
    Cancel_Btn =
        &AddWordButton({"Cancel_Btn", Words::Later("Cancel"), Words::Later("This will stop and cancel the recording"),
                        Plate::Word, kStone, "WordCancel"},
                       [this] { ClickCancel(); });
}

void Recd_Frm::MakeBird()
{
    std::array<QLabel*, 2> poses{&AddLabel("AnimImg0"), &AddLabel("AnimImg1")};
    for (QLabel* pose : poses) {
        pose->setGeometry(BodyRect(kBirdPlace));
        Watcher().Watch(*pose, Words::Text("Recording bird"));
    }
    bird = new RecordingBird(*poses[0], *poses[1], this);
}

void Recd_Frm::MakeDisplay()
{
    QLabel& duration = AddLabel("Dur_Lbl");
    QLabel& status = AddLabel("Rec_Stat_Lbl");
    display = std::make_unique<CaptureDisplay>(*this, duration, status, Watcher());
    const auto picture = [this](const char* name, const QRect& place) {
        QLabel& made = AddLabel(name);
        made.setPixmap(Artwork(QStringLiteral("pictures/") + made.objectName(), place.size(), devicePixelRatioF()));
        made.setGeometry(BodyRect(place));
    };
    picture("Microphone", kMicrophonePlace);
    picture("MicrophoneVolume", kMicrophoneVolumePlace);
}

SourceList& Recd_Frm::MakeSourceList()
{
    auto* list = new SourceList(this);
    list->setGeometry(BodyRect(kSourcesPlace));
    Watcher().Watch(*list, {});
    const auto control = [this](const char* name, const LaterWords& spokenName, const QRect& place,
                                SoundControl opened) {
        AddWordButton({name, spokenName, kControlHint}, [opened] {
            OpenSoundControl(opened);
        }).setGeometry(BodyRect(place));
    };
    control("RecSrcBtn1", Words::Later("Volume of the loudspeakers"), kPlayControlPlace, SoundControl::Play);
    control("RecSrcBtn2", Words::Later("Volume of the microphones"), kRecordControlPlace, SoundControl::Record);
    return *list;
}

void Recd_Frm::MakeVolume(SourceList& list)
{
    QLabel& slider = AddLabel("VolumeSliderImg");
    slider.setPixmap(Artwork(QStringLiteral("pictures/VolumeSliderImg"), kSliderPlace.size(), devicePixelRatioF()));
    slider.setGeometry(BodyRect(kSliderPlace));
    Watcher().Watch(slider, Words::Text("Recording Volume slider"));
    auto* pointer = new SliderPointer(
        this, {"pictures/VolumePrtImg", kVolumePointerSize, kVolumePointerPicture},
        [this](std::int32_t percent) { sources->ShowPercent(percent); },
        [this](std::int32_t percent) { sources->TakePercent(percent); });
    pointer->setObjectName(QStringLiteral("VolumePrtImg"));
    SetSpokenName(*pointer, Words::Text("Recording volume"));
    pointer->move(BodyRect(kSliderPlace).topLeft());
    pointer->SetSlot(kSliderPlace.left(), kSliderPlace.width());
    Watcher().Watch(*pointer, Words::Text("Slide this pointer to adjust Recording Volume"));
    QLabel& percentLbl = AddLabel("VolumeLbl");
    percentLbl.setGeometry(BodyRect(kPercentPlace));
    sources = new RecordingSources(capture, list, *pointer, percentLbl, this);
}

void Recd_Frm::MakeTimer()
{
    CaptureTimer = new QTimer(this);
    CaptureTimer->setObjectName(QStringLiteral("CaptureTimer"));
    CaptureTimer->setInterval(kCaptureMilliseconds);
    CaptureTimer->setTimerType(Qt::PreciseTimer);
    connect(CaptureTimer, &QTimer::timeout, this, &Recd_Frm::TickCapture);
}

void Recd_Frm::PlaceControls()
{
    const int rowWidth = RecFinishBtn->width() + kButtonsGap + Cancel_Btn->width();
    const int left = (kFormWidth - rowWidth) / 2;
    RecFinishBtn->move(BodyPoint(left, kButtonsTop));
    Cancel_Btn->move(BodyPoint(left + RecFinishBtn->width() + kButtonsGap, kButtonsTop));
    resize(kFormWidth, kBandHeight + kButtonsTop + RecFinishBtn->height() + kBelowButtons);
}

void Recd_Frm::InitilizeForm()
{
    const RecdState format;
    Recd().RecdBits = format.RecdBits;
    Recd().RecdRate = format.RecdRate;
    Recd().RecdChannels = format.RecdChannels;
    display->Measure(format.RecdBits);
    view = {};
}

bool Recd_Frm::InitilizeDriver()
{
    bool isOpen = false;
    const auto tell = [](const std::exception& error) { ShowMessage(ErrorWords(error)); };
    GuardedBy(tell, [&] { isOpen = OpenCapture(); });
    return isOpen;
}

bool Recd_Frm::OpenCapture()
{
    constexpr LaterWords failed = Words::Later("Failed to create DirectX Sound Capture Buffer.");
    display->Clear();
    switch (capture.Open()) {
    case CaptureOpening::Ready:
        CaptureTimer->start();
        return true;
    case CaptureOpening::NoMicrophone:
        ShowMessage(failed, Words::Text("Please plug in a microphone."));
        return false;
    case CaptureOpening::Failed:
        break;
    }
    ShowMessage(failed);
    return false;
}

void Recd_Frm::CaptureStartRemote()
{
    Ok = false;
    Guarded([this] { StartCapture(); });
    ShowModal();
    CaptureTimer->stop();
    bird->Stop();
}

void Recd_Frm::StartCapture()
{
    Recd().RecdLength = 0;
    if (!take.Start()) {
        ShowMessage(Words::Text("Recording Failed."));
        return;
    }
    view.Start();
    ShowView();
    bird->Start();
}

void Recd_Frm::ClickFinish()
{
    Guarded([this] {
        const Hourglass hourglass;
        take.Stop();
        view.Stop();
        ShowView();
        take.Load();
        Ok = true;
        ShowHint({});
        Answer(1);
    });
}

void Recd_Frm::ClickCancel()
{
    ShowHint({});
    BandedForm::reject();
}

void Recd_Frm::reject()
{
    const bool isAsked = view.Elapsed() >= kWorthAsking;
    if (!isAsked || AskYesNo(Words::Text("Throw this recording away?")) == 1)
        ClickCancel();
}

void Recd_Frm::TickCapture()
{
    CaptureTimer->stop();
    const bool goesOn = Guarded([this] {
        if (view.Update(capture.Status(), capture.Peaks()))
            ShowView();
        sources->FollowSources();
    });
    if (goesOn)
        CaptureTimer->start();
}

void Recd_Frm::ShowView()
{
    display->Show(view);
    if (!view.IsKeeping())
        bird->Stop();
}

} // namespace sprout
