// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Frm.h"

#include <QSignalBlocker>

#include <exception>
#include <string>
#include <system_error>
#include <utility>

#include "base/Errors.h"
#include "base/Product.h"
#include "core/Busy.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "recording/Recd_Mod.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "ui/Artwork.h"
#include "ui/Dialogs.h"
#include "ui/Guarded.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/PopupKeys.h"
#include "ui/QtText.h"
#include "ui/SpokenRoles.h"

namespace sprout {

namespace {

constexpr int kCaptureMilliseconds = 40;
constexpr int kAnimMilliseconds = 120;
constexpr int kAnimSteps = 5;
constexpr int kAnimHop = 0;       ///< the step at which the bird hops up
constexpr int kAnimLand = 3;      ///< the step at which it has landed
constexpr float kWorthAsking = 2; ///< seconds; longer recordings are not discarded without a question

constexpr int kFormWidth = 600;
constexpr int kFormMargin = 16;
constexpr QRect kBirdPlace{16, 10, 128, 128}; // positions count from the band's lower edge
constexpr QRect kDurationPlace{160, 18, 306, 56};
constexpr QRect kStatusPlace{160, 80, 306, 52};
constexpr QRect kLeftMeterPlace{476, 12, 48, 128};
constexpr QRect kRightMeterPlace{536, 12, 48, 128};
constexpr QRect kProgressPlace{16, 154, 568, 18};
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
constexpr int kBesideSource = 56; ///< frame, arrow and padding
constexpr int kDurationPixels = 36;

constexpr QSize kVolumePointerSize{34, 40};
constexpr QSize kVolumePointerPicture{30, 35};

constexpr const char* kMeterHint = "This should show moving up-down when you sing";
constexpr const char* kControlHint = "This will open the recording control";

/// A rectangle in the form's body.
QRect BodyRect(const QRect& place)
{
    return place.translated(0, kBandHeight);
}

} // namespace

Recd_Frm::Recd_Frm(QWidget* parent) : BandedForm(parent), capture(*TheServices().capture)
{
    setObjectName(QStringLiteral("Recd_Frm"));
    SetCaption(" " + std::string(kProductName) + " - Record Audio");
    MakeButtons();
    MakeBird();
    MakeLabels();
    MakePictures();
    MakeSourceList();
    MakeVolume();
    MakeTimers();
    PlaceControls();
    LoadMixerSources();
}

Recd_Frm::~Recd_Frm()
{
    const Hourglass hourglass;
    capture.Release();
    std::error_code error;
    for (const std::filesystem::path& file : {leftFile, rightFile})
        if (filesAreOurs)
            std::filesystem::remove(file, error); // a voice that could not be loaded must not stay behind
}

void Recd_Frm::MakeButtons()
{
    RecFinishBtn = &AddWordButton({"RecFinishBtn", "Finish", "This will stop and bring the recording to track",
                                   Plate::Word, kDeepLeaf, "WordFinish"},
                                  [this] { ClickFinish(); });
    RecFinishBtn->setFocus();
    Cancel_Btn = &AddWordButton(
        {"Cancel_Btn", "Cancel", "This will stop and cancel the recording", Plate::Word, kStone, "WordCancel"},
        [this] { ClickCancel(); });
}

void Recd_Frm::MakeBird()
{
    constexpr std::array names{"AnimImg0", "AnimImg1"};
    for (std::size_t pose = 0; pose < names.size(); ++pose) {
        QLabel& bird = AddLabel(names[pose]);
        bird.setPixmap(Artwork(QStringLiteral("pictures/") + QString::fromLatin1(names[pose]), kBirdPlace.size(),
                               devicePixelRatioF()));
        bird.setAccessibleName(tr("Bird"));
        bird.setGeometry(BodyRect(kBirdPlace));
        bird.setVisible(pose == 0);
        Watcher().Watch(bird, "Recording bird");
        AnimImg[pose] = &bird;
    }
}

void Recd_Frm::MakeLabels()
{
    Dur_Lbl = &AddLabel("Dur_Lbl");
    QFont large = TitleFont();
    large.setPixelSize(kDurationPixels);
    Dur_Lbl->setFont(large);
    Dur_Lbl->setGeometry(BodyRect(kDurationPlace));
    Watcher().Watch(*Dur_Lbl, "Shows the recorded duration");
    Rec_Stat_Lbl = &AddLabel("Rec_Stat_Lbl");
    Rec_Stat_Lbl->setWordWrap(true);
    Rec_Stat_Lbl->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Rec_Stat_Lbl->setGeometry(BodyRect(kStatusPlace));
    Watcher().Watch(*Rec_Stat_Lbl, "Recording status");
}

void Recd_Frm::MakePictures()
{
    const auto meter = [this](const char* name, const QString& spokenName, const QRect& place) {
        auto* made = new LevelMeterPic(this);
        made->setObjectName(QString::fromLatin1(name));
        made->setAccessibleName(spokenName);
        made->setGeometry(BodyRect(place));
        SetSpokenRole(*made, QAccessible::Graphic);
        Watcher().Watch(*made, kMeterHint);
        return made;
    };
    RecShowLPic = meter("RecShowLPic", tr("Loudness on the left"), kLeftMeterPlace);
    RecShowRPic = meter("RecShowRPic", tr("Loudness on the right"), kRightMeterPlace);
    RecProgressPic = new RecordingProgressPic(this);
    RecProgressPic->setObjectName(QStringLiteral("RecProgressPic"));
    RecProgressPic->setAccessibleName(tr("How much is recorded"));
    RecProgressPic->setGeometry(BodyRect(kProgressPlace));
    SetSpokenRole(*RecProgressPic, QAccessible::Graphic);
    Watcher().Watch(*RecProgressPic, "");
    const auto picture = [this](const char* name, const QRect& place) {
        QLabel& made = AddLabel(name);
        made.setPixmap(Artwork(QStringLiteral("pictures/") + made.objectName(), place.size(), devicePixelRatioF()));
        made.setGeometry(BodyRect(place));
    };
    picture("Microphone", kMicrophonePlace);
    picture("MicrophoneVolume", kMicrophoneVolumePlace);
}

void Recd_Frm::MakeSourceList()
{
    MixerRecSrcCmb = new QComboBox(this);
    MixerRecSrcCmb->setObjectName(QStringLiteral("MixerRecSrcCmb"));
    MixerRecSrcCmb->setAccessibleName(tr("Microphone"));
    MixerRecSrcCmb->setFont(HintFont());
    MixerRecSrcCmb->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    MixerRecSrcCmb->setGeometry(BodyRect(kSourcesPlace));
    KeepClosingKeys(*MixerRecSrcCmb);
    Watcher().Watch(*MixerRecSrcCmb, "");
    MixerRecSrcCmb->installEventFilter(this);
    connect(MixerRecSrcCmb, &QComboBox::currentIndexChanged, this, [this](int row) { ClickSource(row); });
    const auto control = [this](const char* name, const char* spokenName, const QRect& place, SoundControl opened) {
        ImageButton& button =
            AddWordButton({name, spokenName, kControlHint}, [this, opened] { ClickSoundControl(opened); });
        button.setGeometry(BodyRect(place));
        return &button;
    };
    RecSrcBtn[0] = control("RecSrcBtn1", "Volume of the loudspeakers", kPlayControlPlace, SoundControl::Play);
    RecSrcBtn[1] = control("RecSrcBtn2", "Volume of the microphones", kRecordControlPlace, SoundControl::Record);
}

void Recd_Frm::MakeVolume()
{
    VolumeSliderImg = &AddLabel("VolumeSliderImg");
    VolumeSliderImg->setPixmap(
        Artwork(QStringLiteral("pictures/VolumeSliderImg"), kSliderPlace.size(), devicePixelRatioF()));
    VolumeSliderImg->setGeometry(BodyRect(kSliderPlace));
    Watcher().Watch(*VolumeSliderImg, "Recording Volume slider");
    VolumePrtImg = new SliderPointer(
        this, {"pictures/VolumePrtImg", kVolumePointerSize, kVolumePointerPicture},
        [this](std::int32_t percent) { ShowPercent(percent); }, [this](std::int32_t percent) { TakePercent(percent); });
    VolumePrtImg->setObjectName(QStringLiteral("VolumePrtImg"));
    VolumePrtImg->setAccessibleName(tr("Recording volume"));
    VolumePrtImg->move(BodyRect(kSliderPlace).topLeft());
    VolumePrtImg->SetSlot(kSliderPlace.left(), kSliderPlace.width());
    Watcher().Watch(*VolumePrtImg, "Slide this pointer to adjust Recording Volume");
    VolumeLbl = &AddLabel("VolumeLbl");
    VolumeLbl->setGeometry(BodyRect(kPercentPlace));
}

void Recd_Frm::MakeTimers()
{
    const auto timer = [this](const char* name, int milliseconds, void (Recd_Frm::*tick)()) {
        auto* made = new QTimer(this);
        made->setObjectName(QString::fromLatin1(name));
        made->setInterval(milliseconds);
        made->setTimerType(Qt::PreciseTimer);
        connect(made, &QTimer::timeout, this, tick);
        return made;
    };
    CaptureTimer = timer("CaptureTimer", kCaptureMilliseconds, &Recd_Frm::TickCapture);
    AnimTimer = timer("AnimTimer", kAnimMilliseconds, &Recd_Frm::TickAnim);
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
    RecShowLPic->MeasureMeter(PeakMaximum(format.RecdBits));
    RecShowRPic->MeasureMeter(PeakMaximum(format.RecdBits));
    view = {};
}

bool Recd_Frm::InitilizeDriver()
try {
    constexpr std::string_view failed = "Failed to create DirectX Sound Capture Buffer.";
    RecShowLPic->Clear();
    RecShowRPic->Clear();
    switch (capture.Open()) {
    case CaptureOpening::Ready:
        CaptureTimer->start();
        return true;
    case CaptureOpening::NoMicrophone:
        ShowMessage(failed, "Please plug in a microphone.");
        return false;
    case CaptureOpening::Failed:
        break;
    }
    ShowMessage(failed);
    return false;
} catch (const std::exception& error) {
    ShowMessage(ErrorText(error));
    return false;
}

void Recd_Frm::CaptureStartRemote()
{
    Ok = false;
    Guarded([this] { StartCapture(); });
    ShowModal();
    CaptureTimer->stop();
    AnimTimer->stop();
}

void Recd_Frm::StartCapture()
{
    Recd().RecdLength = 0;
    const std::filesystem::path left = NewTempFileName("WavL");
    const std::filesystem::path right = NewTempFileName("WavR");
    if (!capture.Start(left, right)) {
        ShowMessage("Recording Failed.");
        return;
    }
    leftFile = left;
    rightFile = right;
    view.Start();
    ShowView();
    AnimTimer->start();
}

void Recd_Frm::StopCapture()
{
    capture.Stop();
    filesAreOurs = !leftFile.empty();
    view.Stop();
    ShowView();
}

void Recd_Frm::ClickFinish()
{
    Guarded([this] {
        const Hourglass hourglass;
        StopCapture();
        LoadRecordedFiles(leftFile, rightFile);
        filesAreOurs = false;
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
    if (!isAsked || AskYesNo("Throw this recording away?") == 1)
        ClickCancel();
}

bool Recd_Frm::eventFilter(QObject* watched, QEvent* event)
{
    // An accidental turn of the wheel must not change the source.
    if (watched == MixerRecSrcCmb && event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return BandedForm::eventFilter(watched, event);
}

void Recd_Frm::TickCapture()
{
    CaptureTimer->stop();
    const bool goesOn = Guarded([this] {
        UpdateRecordingStatus();
        FollowSources();
    });
    if (goesOn)
        CaptureTimer->start();
}

void Recd_Frm::UpdateRecordingStatus()
{
    if (view.Update(capture.Status(), capture.Peaks()))
        ShowView();
}

void Recd_Frm::ShowView()
{
    Dur_Lbl->setText(QtText(view.Duration()));
    Rec_Stat_Lbl->setText(QtText(view.Status()));
    RecShowLPic->ShowLevel(view.Left(), view.BarColour());
    RecShowRPic->ShowLevel(view.Right(), view.BarColour());
    RecProgressPic->ShowSeconds(view.Elapsed());
    if (!view.IsKeeping())
        AnimTimer->stop();
}

void Recd_Frm::TickAnim()
{
    if (animCounter == kAnimHop || animCounter == kAnimLand) {
        AnimImg[0]->setVisible(animCounter == kAnimLand);
        AnimImg[1]->setVisible(animCounter == kAnimHop);
    }
    animCounter = (animCounter + 1) % kAnimSteps;
}

/// Refilling the list during a drag would pull the pointer out of the user's hand.
void Recd_Frm::FollowSources()
{
    if (capture.SourceChanges() != sourceChanges && !VolumePrtImg->IsDragged())
        LoadMixerSources();
}

void Recd_Frm::LoadMixerSources()
{
    sourceChanges = capture.SourceChanges(); // before the list, to miss no change after it
    const SourceLines sources = LinesOfSources(capture.ListSources());
    const bool isThere = !sources.Lines.empty();
    selectedSource = sources.SourceIndex;
    ShowLines(sources);
    MixerRecSrcCmb->setEnabled(isThere);
    VolumePrtImg->setEnabled(isThere);
    if (isThere)
        ShowRecordVolume(sources.Volume);
}

void Recd_Frm::ShowLines(const SourceLines& sources)
{
    const QSignalBlocker filling(MixerRecSrcCmb);
    // An open list stays open if only a volume has changed.
    if (sources.Lines != lines || lines.empty()) {
        lines = sources.Lines;
        MixerRecSrcCmb->hidePopup();
        MixerRecSrcCmb->clear();
        for (const SourceLine& line : lines)
            AddLine(QtText(line.Name).simplified());
    }
    if (lines.empty())
        MixerRecSrcCmb->addItem(tr("Failed"));
    MixerRecSrcCmb->setCurrentIndex(lines.empty() ? 0 : sources.Selected);
}

/// Shows the start of a long name; the tooltip has all of it.
void Recd_Frm::AddLine(const QString& name)
{
    const int room = MixerRecSrcCmb->width() - kBesideSource;
    MixerRecSrcCmb->addItem(MixerRecSrcCmb->fontMetrics().elidedText(name, Qt::ElideRight, room));
    const int row = MixerRecSrcCmb->count() - 1;
    MixerRecSrcCmb->setItemData(row, QStringLiteral("<p>%1</p>").arg(name.toHtmlEscaped()), Qt::ToolTipRole);
    MixerRecSrcCmb->setItemData(row, name, Qt::AccessibleTextRole);
}

void Recd_Frm::ClickSource(int row)
{
    if (row < 0 || static_cast<std::size_t>(row) >= lines.size())
        return;
    Guarded([this, row] {
        capture.SelectSource(lines[static_cast<std::size_t>(row)].Index);
        LoadMixerSources();
    });
}

void Recd_Frm::ShowRecordVolume(std::int32_t value)
{
    const std::int32_t percent = VolumePercent(value);
    VolumePrtImg->ShowPercent(percent);
    ShowPercent(percent);
}

void Recd_Frm::ShowPercent(std::int32_t percent)
{
    VolumeLbl->setText(QStringLiteral("%1%").arg(percent));
}

void Recd_Frm::TakePercent(std::int32_t percent)
{
    Guarded([this, percent] {
        capture.SetVolume(selectedSource, VolumeOfPercent(percent));
        LoadMixerSources();
    });
}

void Recd_Frm::ClickSoundControl(SoundControl control)
{
    Guarded([control] {
        std::string names;
        for (const std::string& name : TheServices().desktop->OpenSoundControl(control))
            names += names.empty() ? name : " or " + name;
        if (names.empty())
            return;
        TheServices().messages->MessageBox("", "The program " + names +
                                                   " is not found,\r\nthat is needed to set recording sound source\r\n"
                                                   "Please set recording source using volume control in the task bar.");
    });
}

} // namespace sprout
