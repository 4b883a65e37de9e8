// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QCursor>
#include <QLabel>
#include <QTest>

#include <memory>
#include <string>
#include <string_view>

#include "core/Settings.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "main_window/MainFrm.h"
#include "main_window/TransportCommands.h"
#include "song_window/SongSelFrm.h"
#include "songs/OpenSaveClass.h"
#include "sound/PlayMod.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "ui/ModalSteps.h"
#include "ui/forms/MessageForms.h"
#include "ui/words/QtText.h"

namespace sprout {

/// The main window with a new song, 700 x 500 pixels at (50, 60), as if the program had just started.
class MainWindowTest : public testing::Test {
protected:
    MainWindowTest()
    {
        TheServices().playDisplay = &transport;
        NewSong();
        SetSongChanged(Song(), false);
        PutSetting("MainWindow", "WindowState", "0");
        PutSetting("MainWindow", "Size", "10500,7500");
        PutSetting("MainWindow", "Position", "750,900");
        Open();
    }

    ~MainWindowTest() override
    {
        window.reset();
        ReleasePlayer();
        PlayShared() = PlayModState();
    }

    /// Makes the window again from the settings file.
    void Open()
    {
        window.reset();
        window = std::make_unique<MainFrm>(transport);
        window->DrawTracksAll();
        window->UpdateTempoSliderValue();
        window->UpdateSongTitle();
        window->show();
        Activate();
    }

    /// Keys reach only the shortcuts of the active window.
    void Activate()
    {
        window->activateWindow();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] static SongState& Song() { return Shared().Song; }

    [[nodiscard]] QWidget& Control(const char* name) const
    {
        return *window->findChild<QWidget*>(QString::fromLatin1(name));
    }

    [[nodiscard]] std::string TextOf(const char* label) const
    {
        return window->findChild<QLabel*>(QString::fromLatin1(label))->text().toStdString();
    }

    void ClickButton(const char* name) const { Click(*window, name); }

    [[nodiscard]] ButtonFace FaceOf(const char* name) const
    {
        return window->findChild<ImageButton*>(QString::fromLatin1(name))->Face();
    }

    /// Presses a point of a control, drags by some pixels of the screen and releases.
    static void Drag(QWidget& control, QPoint from, QPoint by)
    {
        const QPointF start = control.mapToGlobal(from);
        Send(control, QEvent::MouseButtonPress, start, Qt::LeftButton);
        Send(control, QEvent::MouseMove, start + by / 2, Qt::LeftButton);
        Send(control, QEvent::MouseMove, start + by, Qt::LeftButton);
        Send(control, QEvent::MouseButtonRelease, start + by, Qt::NoButton);
    }

    /// Sends a mouse event at a point of the screen.
    static void Send(QWidget& control, QEvent::Type type, QPointF onScreen, Qt::MouseButtons held)
    {
        // Hints follow the pointer itself, not the moves that windows get when they open.
        QCursor::setPos(onScreen.toPoint());
        const QPointF local = onScreen - control.mapToGlobal(QPointF(0, 0));
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, local, onScreen, button, held, Qt::NoModifier);
        QApplication::sendEvent(&control, &event);
    }

    [[nodiscard]] std::filesystem::path SongPath(std::string_view name) const
    {
        return Shared().UserSongs / (std::string(name) + ".TqSng");
    }

    /// Adds a song with a name and a tempo to the user's songs; the open song stays.
    void PutSong(std::string_view name, std::int32_t tempo) const
    {
        const SongState kept = Song();
        NewSong();
        Song().Tempo = tempo;
        OpenSaveClass(Flush::No).Save_Song(SongPath(name));
        Song() = kept;
    }

    FakeServices fake;
    TransportCommands transport{nullptr};
    std::unique_ptr<MainFrm> window;
};

/// What a message form says, line by line.
struct ShownMessage {
    QString caption;
    QString line1;
    QString line2;
};

/// Keeps the next message and closes it.
inline void NoteNextMessage(ShownMessage& message, std::function<void()> then = {})
{
    WithNextForm([&message, then = std::move(then)](BandedForm& form) {
        const auto text = [&form](const char* name) {
            const auto* label = form.findChild<QLabel*>(QString::fromLatin1(name));
            return label ? label->text() : QString();
        };
        message = {text("CaptionLbl"), text("NoteLbl") + text("NoteLbl1"), text("NoteLbl2")};
        if (then)
            then();
        Click(form, "OkBtn");
    });
}

} // namespace sprout
