// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/AudioEditFrm.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <array>

#include "base/Product.h"
#include "core/Shared.h"
#include "recording/WavePic.h"
#include "recording/rules/WavePoints.h"
#include "sound/PlayMod.h"
#include "ui/Dialogs.h"
#include "ui/Guarded.h"
#include "ui/HelpFrm.h"
#include "ui/Palette.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

// Positions in the picture are multiples of 4, which are whole device pixels at 125, 150 and 175 percent too.
constexpr int kEditMargin = 16;
constexpr int kWavePicTop = 14;
constexpr int kPlaceUnit = 4;
constexpr QSize kLeastWavePic{320, 64};
constexpr QSize kMostWavePic{960, 300};
constexpr int kHScrollGap = 8;
constexpr int kHScrollHeight = 18;
constexpr int kSelectLblGap = 4;
constexpr int kSelectLblHeight = 24;
constexpr int kEditRowGap = 8;
constexpr int kToolSide = 56;
constexpr int kSmallToolSide = 40;
constexpr int kLeastWidthOfTools = 560;
constexpr int kToolGap = 6;
constexpr int kGroupGap = 20;
constexpr int kAnswerGap = 12;
constexpr int kAnswerHeight = 44;
// The frame lies around the picture and hides no pixel of the sound.
constexpr QMargins kPictureFrame{2, 2, 2, 2};
constexpr QMargins kFocusFrame{4, 4, 4, 4};
constexpr int kScrollMost = 100;
constexpr int kScrollPage = 10;

constexpr std::string_view kWavePicHint = "Your recorded sound looks like this";
constexpr std::string_view kHScrollHint = "Slide this to see the other parts of your sound";

/// Qt reverses the arrow keys of scroll bars. No other scroll bar can have the focus.
class WaveScrollBar : public QScrollBar {
public:
    explicit WaveScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {}

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Left)
            triggerAction(SliderSingleStepSub);
        else if (event->key() == Qt::Key_Right)
            triggerAction(SliderSingleStepAdd);
        else
            QScrollBar::keyPressEvent(event);
    }
};

/// The open editor, which the player's timer looks up.
QPointer<AudioEditFrm>& OpenEditor()
{
    static QPointer<AudioEditFrm> editor;
    return editor;
}

/// An audio track of the song, or null for any other number.
Track* AudioTrack(std::int32_t number)
{
    SongState& song = Shared().Song;
    if (number < 1 || number > song.TrackCount)
        return nullptr;
    Track& track = At(song.Tracks, number);
    return track.IsAudio() ? &track : nullptr;
}

WaveData SoundToEdit(std::int32_t number)
{
    const Track* const track = AudioTrack(number);
    return track && track->TrackAudio.Length >= 1 ? track->TrackAudio : WaveData();
}

/// Everything above and below the picture.
constexpr int HeightAround(int toolSide)
{
    return kBandHeight + kWavePicTop + kHScrollGap + kHScrollHeight + kSelectLblGap + kSelectLblHeight + toolSide +
           kEditRowGap + kAnswerHeight + kEditMargin;
}

int PictureSide(int room, int least, int most)
{
    return std::clamp(room, least, most) / kPlaceUnit * kPlaceUnit;
}

} // namespace

/// A button and its click command.
struct AudioEditFrm::CommandRow {
    ButtonRow button;
    std::function<void()> command;
};

AudioEditFrm::AudioEditFrm(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("AudioEditFrm"));
    SetCaption(" " + std::string(kProductName) + " - Edit Audio");
    MakePicture();
    MakeScroll();
    SelectOkLbl = &AddLabel("SelectOkLbl");
    SelectOkLbl->setText(tr("Drag the mouse over a part to select it"));
    SelectedLbl = &AddLabel("SelectedLbl");
    MakeButtons();
    SetTabOrders();
    FitTo(screen()->availableGeometry().size());
    wavePic->setFocus();
    OpenEditor() = this;
}

AudioEditFrm::~AudioEditFrm()
{
    // A window that is still shown is hidden last; its picture would then report that it lost the focus.
    wavePic->disconnect(this);
}

void AudioEditFrm::MakePicture()
{
    wavePic = new WavePic(this);
    wavePic->setObjectName(QStringLiteral("WavePic"));
    Watcher().Watch(*wavePic, kWavePicHint);
    connect(wavePic, &WavePic::Pressed, this, [this](double x) { Guarded([&] { PressPicture(x); }); });
    connect(wavePic, &WavePic::Moved, this, [this](double x) { Guarded([&] { DragPicture(x); }); });
    connect(wavePic, &WavePic::Released, this, [this](double x) { Guarded([&] { ReleasePicture(x); }); });
    connect(wavePic, &WavePic::CursorMoved, this,
            [this](WaveMove move, WaveKeep keep) { Guarded([&] { MoveCursorTo(move, keep); }); });
    connect(wavePic, &WavePic::AllWanted, this, [this] { Guarded([this] { SelectAll(); }); });
    connect(wavePic, &WavePic::FocusChanged, this, [this] { update(wavePic->geometry() + kFocusFrame); });
    connect(wavePic, &WavePic::Resized, this, [this] { Guarded([this] { DrawWaveform(); }); });
}

void AudioEditFrm::MakeScroll()
{
    HScroll = new WaveScrollBar(this);
    HScroll->setObjectName(QStringLiteral("HScroll"));
    HScroll->setAccessibleName(tr("Scroll the sound"));
    HScroll->setRange(0, kScrollMost);
    HScroll->setPageStep(kScrollPage);
    HScroll->setFocusPolicy(Qt::TabFocus);
    HScroll->setTracking(false); // a drag of the thumb counts once, on release
    HScroll->setStyleSheet(QStringLiteral("QScrollBar:focus { border: 2px solid #1F6FA8; border-radius: 9px; }"
                                          "QScrollBar::handle:focus { border-radius: 6px; }"));
    Watcher().Watch(*HScroll, kHScrollHint);
    connect(HScroll, &QScrollBar::valueChanged, this, [this] { Guarded([this] { Scroll(); }); });
}

void AudioEditFrm::MakeButtons()
{
    // Enter presses the first one.
    const std::array rows{
        CommandRow{{"OkBtn", "OK", "Ok button, use it to keep the sound as it is now", Plate::Word, kDeepLeaf},
                   [this] { OkBtn(); }},
        CommandRow{{"CancelBtn", "Cancel", "Cancel button, use it to leave the sound as it was", Plate::Word, kStone},
                   [this] { CancelBtn(); }},
        CommandRow{{"TestPlayBtn", "Play", "Play button, click on it to play this audio"}, [this] { PlayEditWave(); }},
        CommandRow{{"VolumeUpBtn", "Louder", "Select an audio part and use this up arrow to increase the volume"},
                   [this] { ChangeVolume(VolumeChange::Up); }},
        CommandRow{{"VolumeDnBtn", "Softer", "Select an audio part and use this down arrow to reduce the volume"},
                   [this] { ChangeVolume(VolumeChange::Down); }},
        CommandRow{{"DeleteBtn", "Delete", "Select the unwanted audio and use this button to delete it."},
                   [this] { DeleteBtn(); }},
        CommandRow{{"ZoomInBtn", "Zoom in", "Zoom In Button, click on it to zoom in the waveform display"},
                   [this] { ZoomWave(WaveZoom::In); }},
        CommandRow{{"ZoomOutBtn", "Zoom out", "Zoom Out Button, click on it to zoom out the waveform display"},
                   [this] { ZoomWave(WaveZoom::Out); }},
        CommandRow{{"HelpBtn", "Help", "Help button, use it to see help"}, [] { ShowHelp(); }},
    };
    for (const CommandRow& row : rows)
        AddWordButton(row.button, [command = row.command] { Guarded(command); });
}

void AudioEditFrm::SetTabOrders()
{
    QWidget* before = wavePic;
    for (const char* name : {"HScroll", "TestPlayBtn", "VolumeUpBtn", "VolumeDnBtn", "DeleteBtn", "ZoomInBtn",
                             "ZoomOutBtn", "HelpBtn", "OkBtn", "CancelBtn"}) {
        auto* next = findChild<QWidget*>(QString::fromLatin1(name));
        setTabOrder(before, next);
        before = next;
    }
}

void AudioEditFrm::FitTo(QSize room)
{
    const int toolSide = room.width() < kLeastWidthOfTools ? kSmallToolSide : kToolSide;
    const int pictureWidth = PictureSide(room.width() - 4 * kEditMargin, kLeastWavePic.width(), kMostWavePic.width());
    const int pictureHeight = PictureSide(room.height() - HeightAround(toolSide) - kEditMargin, kLeastWavePic.height(),
                                          kMostWavePic.height());
    resize(pictureWidth + 2 * kEditMargin, pictureHeight + HeightAround(toolSide));
    int top = kWavePicTop;
    const auto place = [&](QWidget& part, int partHeight, int gap) {
        part.setGeometry({BodyPoint(kEditMargin, top), QSize(pictureWidth, partHeight)});
        top += partHeight + gap;
    };
    place(*wavePic, pictureHeight, kHScrollGap);
    place(*HScroll, kHScrollHeight, kSelectLblGap);
    SelectedLbl->setGeometry({BodyPoint(kEditMargin, top), QSize(pictureWidth, kSelectLblHeight)});
    place(*SelectOkLbl, kSelectLblHeight, 0);
    PlaceTools(kEditMargin, top, toolSide, kEditMargin + pictureWidth);
    PlaceAnswers(kEditMargin, top + toolSide + kEditRowGap);
}

void AudioEditFrm::PlaceTools(int left, int top, int side, int right)
{
    const int groupGap = side == kToolSide ? kGroupGap : kToolGap;
    const auto put = [&](const char* name, int x) {
        findChild<QWidget*>(QString::fromLatin1(name))->setGeometry({BodyPoint(x, top), QSize(side, side)});
    };
    for (const auto& group :
         {std::vector{"TestPlayBtn"}, {"VolumeUpBtn", "VolumeDnBtn", "DeleteBtn"}, {"ZoomInBtn", "ZoomOutBtn"}}) {
        for (const char* name : group) {
            put(name, left);
            left += side + kToolGap;
        }
        left += groupGap - kToolGap;
    }
    put("HelpBtn", right - side);
}

void AudioEditFrm::PlaceAnswers(int left, int top)
{
    auto* const okBtn = findChild<QWidget*>(QStringLiteral("OkBtn"));
    okBtn->move(BodyPoint(left, top));
    findChild<QWidget*>(QStringLiteral("CancelBtn"))->move(BodyPoint(left + okBtn->width() + kAnswerGap, top));
}

void AudioEditFrm::UpdateFormWithCurrentTrack(std::int32_t track)
{
    const QScopedValueRollback guard(scrollGuard, true);
    view = WaveView();
    view.FitAll = true;
    cursor = {};
    changed = false;
    Ok = false;
    HScroll->setValue(0);
    trackNumber = track;
    editWave = SoundToEdit(track);
    wavePic->MovePlayMarker(kMarkerOutOfSight);
    DrawWaveform();
    view.FitAll = false;
}

void AudioEditFrm::DrawWaveform()
{
    wavePic->Show(sprout::DrawWaveform(editWave, wavePic->ScaleSize(), view));
    ShowSelection();
}

void AudioEditFrm::ShowSelection()
{
    const QString spoken = QtText(SpokenSelection(view, editWave.Rate));
    wavePic->Speak(spoken);
    SelectedLbl->setText(spoken);
    static_cast<void>(HasSelection());
}

/// Whether there is a selection to edit; if not, `SelectOkLbl` tells how to make one.
bool AudioEditFrm::HasSelection()
{
    const bool valid = SelectionIsValid(view, editWave.Length);
    SelectOkLbl->setVisible(!valid);
    SelectedLbl->setVisible(valid);
    return valid;
}

void AudioEditFrm::PressPicture(double x)
{
    const std::int32_t pictureWidth = wavePic->ScaleSize().Width;
    drag = PressWave(x, pictureWidth, editWave.Length, view);
    wavePic->ShowBand(PressedBand(x, pictureWidth));
}

void AudioEditFrm::DragPicture(double x)
{
    wavePic->ShowBand(DraggedBand(drag, x, wavePic->ScaleSize().Width));
}

void AudioEditFrm::ReleasePicture(double x)
{
    const std::int32_t pressed = view.SelectionStart;
    ReleaseWave(x, wavePic->ScaleSize().Width, editWave.Length, view);
    cursor = {view.SelectionStart == pressed ? view.SelectionEnd : view.SelectionStart, pressed};
    wavePic->HideBand();
    DrawWaveform();
}

void AudioEditFrm::MoveCursorTo(WaveMove move, WaveKeep keep)
{
    MoveCursor(move, keep, editWave.Length, cursor, view);
    DrawWaveform();
}

void AudioEditFrm::SelectAll()
{
    SelectWave(editWave.Length, cursor, view);
    DrawWaveform();
}

void AudioEditFrm::Scroll()
{
    if (scrollGuard)
        return;
    ScrollWave(editWave.Length, HScroll->value(), view);
    DrawWaveform();
}

void AudioEditFrm::ChangeVolume(VolumeChange change)
{
    if (!HasSelection())
        return ShowMessage("Make a selection on the waveform", "(by mouse drag) to adjust volume or delete.");
    sprout::ChangeVolume(change, view.SelectionStart, view.SelectionEnd, editWave);
    changed = true;
    DrawWaveform();
    PlayEditWave();
}

void AudioEditFrm::DeleteBtn()
{
    if (!HasSelection())
        return ShowMessage("Make a selection on the waveform", "(by mouse drag) to adjust volume or delete.");
    Player().StopPlay();
    if (view.SelectionEnd - view.SelectionStart + 1 >= editWave.Length)
        return ShowMessage("Can not delete all,", "Select a part and delete.");
    editWave = CutSamples(editWave, view.SelectionStart, view.SelectionEnd);
    cursor.Place = cursor.Other = std::min(view.SelectionStart, editWave.Length);
    view.SelectionStart = view.SelectionEnd = 0;
    changed = true;
    DrawWaveform();
    PlayEditWave();
}

void AudioEditFrm::ZoomWave(WaveZoom which)
{
    sprout::ZoomWave(which, editWave.Length, wavePic->ScaleSize().Width, HScroll->value(), view);
    DrawWaveform();
}

void AudioEditFrm::PlayEditWave()
{
    PlayWaveKind(editWave, PlayKind::Recording, Loop::No);
}

void AudioEditFrm::UpdatePlayPointer()
{
    const PlayModState& play = PlayShared();
    const bool plays = play.PlayState != PlayState::Stopped && play.PlayKind == PlayKind::Recording;
    wavePic->MovePlayMarker(plays ? PlayMarkerLeft(view, play.PlayCursor, wavePic->ScaleSize().Width)
                                  : kMarkerOutOfSight);
}

void AudioEditFrm::OkBtn()
{
    Ok = true;
    Track* const track = AudioTrack(trackNumber);
    if (track && changed) {
        track->TrackAudio = editWave;
        track->TrackRenderValid = false;
        Shared().Song.SongMixValid = false;
        Shared().Song.SongChanged = true;
    }
    ShowHint({});
    Answer(1);
}

void AudioEditFrm::CancelBtn()
{
    ShowHint({});
    Ok = false;
    Answer(0);
}

void AudioEditFrm::reject()
{
    Guarded([this] { CancelBtn(); });
}

void AudioEditFrm::paintEvent(QPaintEvent* event)
{
    BandedForm::paintEvent(event);
    QPainter painter(this);
    const bool hasFocus = wavePic->hasFocus();
    painter.fillRect(wavePic->geometry() + (hasFocus ? kFocusFrame : kPictureFrame), hasFocus ? kLink : kBark);
}

void AudioEditFrm::keyPressEvent(QKeyEvent* event)
{
    const auto run = [event](auto command) {
        if (!event->isAutoRepeat()) // holding the key would restart the sound again and again
            Guarded(command);
    };
    switch (event->key()) {
    case Qt::Key_Space:
        return run([this] { PlayEditWave(); });
    case Qt::Key_Delete:
        return run([this] { DeleteBtn(); });
    case Qt::Key_Plus:
        return run([this] { ZoomWave(WaveZoom::In); });
    case Qt::Key_Minus:
        return run([this] { ZoomWave(WaveZoom::Out); });
    default:
        BandedForm::keyPressEvent(event);
    }
}

void UpdatePlayPointer()
{
    if (OpenEditor())
        OpenEditor()->UpdatePlayPointer();
}

} // namespace sprout
