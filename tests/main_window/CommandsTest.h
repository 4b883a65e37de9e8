// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <QLabel>
#include <QTest>
#include <QTimer>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/SongModel.h"
#include "main_window/AudioTrackCommands.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackCommands.h"
#include "main_window/TransportCommands.h"
#include "sound/PlayMod.h"
#include "sound/PlayTest.h"
#include "support/FakeServices.h"
#include "support/FakeWindows.h"
#include "support/Flags.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// What the next modal form says; it is answered with a button. If no form comes there are no lines.
class NextForm {
public:
    explicit NextForm(const char* button = "OkBtn")
    {
        QObject::connect(&whenShown, &QTimer::timeout, &whenShown, [this, button] {
            auto* form = qobject_cast<BandedForm*>(QApplication::activeModalWidget());
            if (!form)
                return;
            caption = form->findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text().toStdString();
            for (const QLabel* note : form->findChildren<QLabel*>(QRegularExpression(QStringLiteral("^NoteLbl"))))
                lines.push_back(note->text().toStdString());
            Click(*form, button);
        });
        whenShown.setSingleShot(true);
        whenShown.start(0);
    }

    std::string caption;
    std::vector<std::string> lines;

private:
    QTimer whenShown;
};

/// The transport and track commands on a real canvas with a fake sound output. In the three music tracks of the song,
/// steps 1 and 2 sound; nothing is painted.
class CommandsTest : public testing::Test {
protected:
    static constexpr std::int32_t kStepFrames = 1000;

    CommandsTest()
    {
        PlayShared() = PlayModState();
        TheServices().playDisplay = &transport;
        NewSong();
        song.TrackCount = 3;
        song.Tracks.assign(4, Track());
        for (std::int32_t number = 1; number <= 3; ++number) {
            ResetTrack(number);
            GiveTune(At(song.Tracks, number).TrackTune);
        }
        SetSongChanged(song, false);
        SetSoundDriver(true);
        SetStatusLbl(&statusLbl);
        soundStatusLbl.setText(QStringLiteral("Ready"));
        MakeCanvas();
        // From here on the tests make the ticks.
        transport.SetWindow(*canvas, soundStatusLbl);
        Timer("TrackTitlePlayTimer").stop();
    }
    ~CommandsTest() override
    {
        ReleasePlayer();
        PlayShared() = PlayModState();
    }

    static void GiveTune(Tune& tune)
    {
        tune.Name = "Piko";
        tune.Picture = Shared().NewTunePicture;
        for (const std::size_t step : {1U, 2U}) {
            tune.Steps[step].OnPos = 1;
            tune.Steps[step].StepWave = CountingWave(kStepFrames);
            SetStepWaveValid(tune.Steps[step], true);
        }
    }

    void MakeAudio(std::int32_t number, std::int32_t frames) const
    {
        Track& track = At(song.Tracks, number);
        track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
        track.TrackAudio = CountingWave(frames);
        canvas->DrawTracksAll();
    }

    void Paint(std::int32_t number, std::int32_t first, std::int32_t last) const
    {
        for (std::int32_t cell = first; cell <= last; ++cell)
            At(At(song.Tracks, number).Painted, cell) = 1;
    }

    [[nodiscard]] QTimer& Timer(const char* name)
    {
        QTimer* timer = transport.findChild<QTimer*>(QString::fromLatin1(name));
        return timer ? *timer : *tracks->findChild<QTimer*>(QString::fromLatin1(name));
    }
    void Tick(const char* name) { QMetaObject::invokeMethod(&Timer(name), "timeout", Qt::DirectConnection); }

    [[nodiscard]] QWidget& Part(const char* name) const
    {
        return *canvas->findChild<QWidget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] bool MarkerShown(const char* name) const { return !Part(name).isHidden(); }

    /// Rests the pointer on a point in a track's row of the title strip.
    void Hover(std::int32_t number, int x, int y = 20) const
    {
        // A move to the pointer's current place would not count.
        QTest::mouseMove(&Part("TrackTitlePic"), QPoint(1, 1));
        QTest::mouseMove(&Part("TrackTitlePic"), QPoint(x, RowTop(canvas->View(), number) + y));
    }
    void HoverPicture(std::int32_t number) const { Hover(number, 30); }
    void HoverPlayButton(std::int32_t number) const { Hover(number, 110); }
    [[nodiscard]] QPoint CellPlace(std::int32_t number, std::int32_t cell) const
    {
        return {CellLeft(canvas->View(), cell), RowTop(canvas->View(), number) + 20};
    }

    [[nodiscard]] bool SoundStarted() const
    {
        return testing::Value(sound.calls, testing::Contains(testing::HasSubstr("Start")));
    }
    /// The frames that the device got, without the tail.
    [[nodiscard]] std::int32_t FramesPlayed() const
    {
        return static_cast<std::int32_t>(sound.pcm.size()) / 4 - (sound.pcm.empty() ? 0 : 2205);
    }
    [[nodiscard]] std::string Status() const { return soundStatusLbl.text().toStdString(); }

    FakeServices services;
    FakeWindows windows;
    ProvidedWindows provided{windows};
    FakeSoundOutput& sound = services.sound;
    SongState& song = Shared().Song;
    PlayModState& play = PlayShared();
    QLabel statusLbl;
    QLabel soundStatusLbl;
    QWidget window;
    ButtonScheme buttons{window, AllOffTimer::OffAtFirst};
    TransportCommands transport{nullptr};
    TrackCanvas* canvas = nullptr;
    std::unique_ptr<TrackCommands> tracks;
    std::unique_ptr<AudioTrackCommands> audioTracks;

private:
    void MakeCanvas()
    {
        TrackCanvasCalls calls;
        calls.PlaySongFrom = [this](std::int32_t cell) { transport.PlaySongFrom(cell); };
        calls.PlayTrackFrom = [this](std::int32_t track, std::int32_t cell) { transport.PlayTrackFrom(track, cell); };
        calls.EnableTrackTitlePlayTimer = [this] { transport.EnableTrackTitlePlayTimer(); };
        calls.PlayOrStop = [this] { transport.PlayOrStop(); };
        calls.TrackPlayBtn = [this] { transport.TrackPlayBtn(); };
        calls.TrackDeleteBtn = [this] { tracks->TrackDeleteBtn(); };
        calls.TrackTuneBtn = [this] { tracks->TrackTuneBtn(); };
        calls.TrackAddBtn = [this] { tracks->TrackAddBtn(); };
        calls.TrackAddRecBtn = [this] { audioTracks->TrackAddRecBtn(); };
        calls.TrackAudioBtn = [this] { audioTracks->TrackAudioBtn(); };
        canvas = new TrackCanvas(&window, buttons, std::move(calls));
        tracks = std::make_unique<TrackCommands>(*canvas, nullptr);
        audioTracks = std::make_unique<AudioTrackCommands>(*canvas);
        window.resize(800, 500);
        canvas->resize(800, 500);
        window.show();
    }
};

} // namespace sprout
