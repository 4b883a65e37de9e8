// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "core/Shared.h"
#include "recording/AudioEditFrm.h"
#include "recording/WavePic.h"
#include "recording/WaveScrollBar.h"
#include "sound/PlayTest.h"
#include "support/Flags.h"
#include "ui/ModalSteps.h"
#include "ui/look/Palette.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// A song with a music track and an audio track of 16,000 frames, and the editor opened on the audio track. The picture
/// is 736 pixels wide.
class AudioEditFixture : public PlayTest {
protected:
    AudioEditFixture()
    {
        SetStatusLbl(&statusLbl);
        SongState& song = Shared().Song;
        song.TrackCount = 2;
        song.Tracks.resize(3);
        song.Tracks[2].TrackType = static_cast<std::int32_t>(TrackKind::Audio);
        song.Tracks[2].TrackAudio = CountingWave(16000);
        SetTrackRenderValid(song.Tracks[2], true);
        SetSongMixValid(song, true);
        form.FitTo({800, 600});
        Open(2);
    }

    void Open(std::int32_t number)
    {
        form.UpdateFormWithCurrentTrack(number);
        form.show();
        QApplication::setActiveWindow(&form);
        Pic().setFocus();
    }

    void OpenWave(const WaveData& wave)
    {
        Audio() = wave;
        Open(2);
    }

    static WaveData& Audio() { return Shared().Song.Tracks[2].TrackAudio; }

    template <class Control = QWidget>
    Control& Part(const char* name)
    {
        return *form.findChild<Control*>(QString::fromLatin1(name));
    }

    WavePic& Pic() { return Part<WavePic>("WavePic"); }
    QScrollBar& Bar() { return Part<QScrollBar>("HScroll"); }
    void Click(const char* name) { sprout::Click(form, name); }
    QString Spoken() { return Pic().accessibleName().section(QStringLiteral(": "), 1); }
    int Right() { return Pic().width() - 1; }

    void Drag(int from, int to)
    {
        QTest::mousePress(&Pic(), Qt::LeftButton, {}, {from, 30});
        QTest::mouseMove(&Pic(), {to, 30});
        QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, {to, 30});
    }

    /// The track's sound after OK.
    const WaveData& Taken()
    {
        Click("OkBtn");
        return Audio();
    }

    /// The pixels of the picture's top row that have the selection's colour, as "left-right".
    std::string Boxed()
    {
        const QImage image = Pic().Draw(1);
        const QColor colour = ColourOf(Shared().WaveColours.SelectBackColor);
        int first = -1;
        int last = -1;
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, 0) == colour) {
                first = first < 0 ? x : first;
                last = x;
            }
        return std::to_string(first) + "-" + std::to_string(last);
    }

    QLabel statusLbl;
    AudioEditFrm form{nullptr};
};

} // namespace sprout
