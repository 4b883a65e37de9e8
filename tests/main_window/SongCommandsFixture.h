// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTimer>

#include "main_window/MainWindowTest.h"
#include "support/Flags.h"
#include "support/FullDisk.h"

namespace sprout {

inline constexpr std::int32_t kQuickTempo = 400;

/// The main window, with answers to the forms that its song commands open.
class SongCommandsFixture : public MainWindowTest {
protected:
    /// Chooses a song in the next song window, after running `before`.
    static void ChooseNextSong(const char* name, std::function<void()> before = {})
    {
        WithNextForm([name, before = std::move(before)](BandedForm& form) {
            auto* list = form.findChild<QListWidget*>(QStringLiteral("SngNmLst"));
            const auto lines = list->findItems(QString::fromLatin1(name), Qt::MatchExactly);
            ASSERT_EQ(lines.size(), 1);
            list->setCurrentItem(lines.front());
            if (before)
                before();
            Click(form, "OkBtn");
        });
    }

    /// Types a name into the next song window and clicks OK; `message` is what the program says then.
    static void SaveNextAs(const char* name, ShownMessage& message)
    {
        WithNextForm([name, &message](BandedForm& form) {
            auto* box = form.findChild<QLineEdit*>(QStringLiteral("SongNameTxt"));
            EXPECT_EQ(box->text().toStdString(), Song().SongTitle);
            box->setText(QString::fromLatin1(name));
            // The message appears after the song window has closed.
            NoteNextMessage(message);
            Click(form, "OkBtn");
        });
    }

    /// Answers the next title form.
    void ChangeNextTitle(const char* name, const char* author, const char* button = "OkBtn") const
    {
        WithNextForm([this, name, author, button](BandedForm& form) {
            EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text(),
                      QStringLiteral(" Change Song Title"));
            EXPECT_EQ(TextOf("StatusLbl"), "");
            form.findChild<QLineEdit*>(QStringLiteral("NameTxt"))->setText(QString::fromLatin1(name));
            form.findChild<QLineEdit*>(QStringLiteral("CreatedTxt"))->setText(QString::fromLatin1(author));
            Click(form, button);
        });
    }

    void StartToPlay()
    {
        SetSoundDriver(true);
        Shared().TestTone = WaveOfOneSecond();
        PlayWaveStatus(Shared().TestTone, Words::Text("Playing"), Loop::No);
        ASSERT_EQ(PlayShared().PlayState, PlayState::Playing);
    }

    static WaveData WaveOfOneSecond()
    {
        WaveData wave;
        wave.Length = 44100;
        wave.WavL = Channel(wave.Length);
        wave.WavR = Channel(wave.Length);
        return wave;
    }

    FullDisk fullDisk;
};

} // namespace sprout
