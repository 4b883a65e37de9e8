// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/AudioEditFrm.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <array>
#include <optional>

#include "base/Product.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "recording/EditedSound.h"
#include "recording/WavePic.h"
#include "recording/WaveScrollBar.h"
#include "recording/rules/AudioEditPlaces.h"
#include "sound/PlayMod.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Palette.h"
#include "ui/widgets/FreeRoom.h"
#include "ui/widgets/PutAt.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kAnswerGap = 12;
// The frame lies around the picture and hides no pixel of the sound.
constexpr QMargins kPictureFrame{2, 2, 2, 2};
constexpr QMargins kFocusFrame{4, 4, 4, 4};

constexpr LaterWords kWavePicHint = Words::Later("Your recorded sound looks like this");
constexpr LaterWords kHScrollHint = Words::Later("Slide this to see the other parts of your sound");

/// By `EditTool`.
constexpr std::array<const char*, kEditTools> kToolNames{"TestPlayBtn", "VolumeUpBtn", "VolumeDnBtn", "DeleteBtn",
                                                         "ZoomInBtn",   "ZoomOutBtn",  "HelpBtn"};

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

void TellSelectionMissing()
{
    ShowMessage(Words::Text("Make a selection on the waveform"),
                Words::Text("(by mouse drag) to adjust volume or delete."));
}

} // namespace

/// A button and its click command.
struct AudioEditFrm::CommandRow {
    ButtonRow button;
    std::function<void()> command;
};

AudioEditFrm::AudioEditFrm(QWidget* parent) : BandedForm(parent), sound(new EditedSound(this))
{
    setObjectName(QStringLiteral("AudioEditFrm"));
    SetCaption(Words::Text(" %1 - Edit Audio", kProductName));
    MakeSound();
    SelectOkLbl = &AddLabel("SelectOkLbl");
    SelectedLbl = &AddLabel("SelectedLbl");
    MakeButtons();
    SetTabOrders();
    FitTo(FreeRoom(*this));
    sound->Picture().setFocus();
    OpenEditor() = this;
}

AudioEditFrm::~AudioEditFrm()
{
    // A window that is still shown is hidden last; its picture would then report to this one.
    sound->Picture().disconnect(this);
    sound->disconnect(this);
}

void AudioEditFrm::MakeSound()
{
    Watcher().Watch(sound->Picture(), kWavePicHint);
    Watcher().Watch(sound->Bar(), kHScrollHint);
    connect(&sound->Picture(), &WavePic::FocusChanged, this,
            [this] { update(sound->Picture().geometry() + kFocusFrame); });
    connect(sound, &EditedSound::Shown, this, [this] {
        SetFittingText(*SelectedLbl, sound->Editor().Spoken());
        static_cast<void>(HasSelection());
    });
}

void AudioEditFrm::MakeButtons()
{
    // Enter presses the first one.
    const std::array rows{
        CommandRow{{"OkBtn", Words::Later("OK"), Words::Later("Ok button, use it to keep the sound as it is now"),
                    Plate::Word, kDeepLeaf},
                   [this] { OkBtn(); }},
        CommandRow{{"CancelBtn", Words::Later("Cancel"),
                    Words::Later("Cancel button, use it to leave the sound as it was"), Plate::Word, kStone},
                   [this] { CancelBtn(); }},
        CommandRow{{"TestPlayBtn", Words::Later("Play"), Words::Later("Play button, click on it to play this audio")},
                   [this] { PlayEditWave(); }},
        CommandRow{{"VolumeUpBtn", Words::Later("Louder"),
                    Words::Later("Select an audio part and use this up arrow to increase the volume")},
                   [this] { ChangeVolume(VolumeChange::Up); }},
        CommandRow{{"VolumeDnBtn", Words::Later("Softer"),
                    Words::Later("Select an audio part and use this down arrow to reduce the volume")},
                   [this] { ChangeVolume(VolumeChange::Down); }},
        CommandRow{{"DeleteBtn", Words::Later("Delete"),
                    Words::Later("Select the unwanted audio and use this button to delete it.")},
                   [this] { DeleteBtn(); }},
        CommandRow{{"ZoomInBtn", Words::Later("Zoom in"),
                    Words::Later("Zoom In Button, click on it to zoom in the waveform display")},
                   [this] { sound->Zoom(WaveZoom::In); }},
        CommandRow{{"ZoomOutBtn", Words::Later("Zoom out"),
                    Words::Later("Zoom Out Button, click on it to zoom out the waveform display")},
                   [this] { sound->Zoom(WaveZoom::Out); }},
        CommandRow{{"HelpBtn", Words::Later("Help"), Words::Later("Help button, use it to see help")},
                   [] { TheWindows().ShowHelp(); }},
    };
    for (const CommandRow& row : rows)
        AddWordButton(row.button, [command = row.command] { Guarded(command); });
}

void AudioEditFrm::SetTabOrders()
{
    QWidget* before = &sound->Picture();
    for (const char* name : {"HScroll", "TestPlayBtn", "VolumeUpBtn", "VolumeDnBtn", "DeleteBtn", "ZoomInBtn",
                             "ZoomOutBtn", "HelpBtn", "OkBtn", "CancelBtn"}) {
        auto* next = findChild<QWidget*>(QString::fromLatin1(name));
        setTabOrder(before, next);
        before = next;
    }
}

void AudioEditFrm::FitTo(QSize room)
{
    const AudioEditPlaces places = PlaceAudioEditor(room.width(), room.height() - kBandHeight);
    const auto rect = [](const Box& box) { return RectOf(box).translated(BodyPoint(0, 0)); };
    resize(places.width, kBandHeight + places.height);
    sound->Picture().setGeometry(rect(places.picture));
    sound->Bar().setGeometry(rect(places.scroll));
    SelectedLbl->setGeometry(rect(places.selection));
    SetFittingText(*SelectedLbl, sound->Editor().Spoken());
    SelectOkLbl->setGeometry(rect(places.selection));
    SetFittingText(*SelectOkLbl, Words::Text("Drag the mouse over a part to select it"));
    for (std::size_t tool = 0; tool < kEditTools; ++tool)
        findChild<QWidget*>(QString::fromLatin1(kToolNames[tool]))->setGeometry(rect(places.tools[tool]));
    auto* const okBtn = findChild<QWidget*>(QStringLiteral("OkBtn"));
    okBtn->move(BodyPoint(places.answersLeft, places.answersTop));
    findChild<QWidget*>(QStringLiteral("CancelBtn"))
        ->move(BodyPoint(places.answersLeft + okBtn->width() + kAnswerGap, places.answersTop));
}

void AudioEditFrm::UpdateFormWithCurrentTrack(std::int32_t track)
{
    Ok = false;
    trackNumber = track;
    sound->Load(SoundToEdit(track));
}

bool AudioEditFrm::TrackWasChanged() const
{
    return Ok && sound->Editor().IsChanged();
}

/// Whether there is a selection to edit; if not, `SelectOkLbl` tells how to make one.
bool AudioEditFrm::HasSelection()
{
    const bool valid = sound->Editor().HasSelection();
    SelectOkLbl->setVisible(!valid);
    SelectedLbl->setVisible(valid);
    return valid;
}

void AudioEditFrm::ChangeVolume(VolumeChange change)
{
    if (!HasSelection())
        return TellSelectionMissing();
    sound->ChangeVolume(change);
    PlayEditWave();
}

void AudioEditFrm::DeleteBtn()
{
    if (!HasSelection())
        return TellSelectionMissing();
    Player().StopPlay();
    if (sound->Editor().SelectsAll())
        return ShowMessage(Words::Text("Can not delete all,"), Words::Text("Select a part and delete."));
    sound->Cut();
    PlayEditWave();
}

void AudioEditFrm::PlayEditWave()
{
    PlayWaveKind(sound->Editor().Wave(), PlayKind::Recording, Loop::No);
}

void AudioEditFrm::UpdatePlayPointer()
{
    const PlayModState& play = PlayShared();
    const bool plays = play.PlayState != PlayState::Stopped && play.PlayKind == PlayKind::Recording;
    sound->ShowPlayed(plays ? std::optional(play.PlayCursor) : std::nullopt);
}

void AudioEditFrm::OkBtn()
{
    Ok = true;
    Track* const track = AudioTrack(trackNumber);
    if (track && sound->Editor().IsChanged()) {
        track->TrackAudio = sound->Editor().Wave();
        SongChanges::AudioReplaced(Shared().Song, trackNumber);
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
    const WavePic& picture = sound->Picture();
    const bool hasFocus = picture.hasFocus();
    painter.fillRect(picture.geometry() + (hasFocus ? kFocusFrame : kPictureFrame), hasFocus ? kLink : kBark);
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
        return run([this] { sound->Zoom(WaveZoom::In); });
    case Qt::Key_Minus:
        return run([this] { sound->Zoom(WaveZoom::Out); });
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
