// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include <cstdint>
#include <string>
#include <vector>

#include "core/Shared.h"
#include "core/SongModel.h"
#include "main_window/TrackCanvas.h"
#include "support/FakeServices.h"
#include "ui/look/ProgramPictures.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// A canvas whose painting surface is 600 x 300, on a song with two empty music tracks; the canvas's requests are kept.
class CanvasFixture : public testing::Test {
protected:
    static constexpr int kPicWidth = 600;
    static constexpr int kPicHeight = 300;

    CanvasFixture()
    {
        QCursor::setPos(790, 790); // beside the window, so the first move is a real one
        SetStatusLbl(&statusLbl);
        MakeProgramPictures();
        NewSong();
        window.resize(140 + kPicWidth + 18, kPicHeight + 18);
        canvas = new TrackCanvas(&window, scheme, Calls());
        canvas->resize(window.size());
        window.show();
        QApplication::setActiveWindow(&window);
        canvas->setFocus(Qt::MouseFocusReason);
        QApplication::processEvents();
    }

    // In the next test no mouse button is down.
    ~CanvasFixture() override
    {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            QTest::mouseRelease(&window, button);
    }

    TrackCanvasCalls Calls()
    {
        const auto note = [this](const char* name) { return [this, name] { asked.emplace_back(name); }; };
        TrackCanvasCalls calls;
        calls.PlaySongFrom = [this](std::int32_t cell) { asked.push_back("PlaySongFrom " + std::to_string(cell)); };
        calls.PlayTrackFrom = [this](std::int32_t track, std::int32_t cell) {
            asked.push_back("PlayTrackFrom " + std::to_string(track) + " " + std::to_string(cell));
        };
        calls.EnableTrackTitlePlayTimer = [this] { ++titlePlays; };
        calls.PlayOrStop = note("PlayOrStop");
        calls.ShowCell = [this](std::string_view text) { cellText = text; };
        calls.TrackPlayBtn = note("TrackPlayBtn");
        calls.TrackDeleteBtn = note("TrackDeleteBtn");
        calls.TrackTuneBtn = note("TrackTuneBtn");
        calls.TrackAudioBtn = note("TrackAudioBtn");
        calls.TrackAddBtn = note("TrackAddBtn");
        calls.TrackAddRecBtn = note("TrackAddRecBtn");
        return calls;
    }

    static SongState& Song() { return Shared().Song; }
    static Track& TrackOf(std::int32_t number) { return At(Song().Tracks, number); }

    /// Gives the song empty music tracks.
    void SetTracks(std::int32_t count)
    {
        Song().TrackCount = count;
        Song().Tracks.assign(static_cast<std::size_t>(count) + 1, Track());
        for (std::int32_t track = 1; track <= count; ++track)
            ResetTrack(track);
        canvas->DrawTracksAll();
    }

    void PaintCells(std::int32_t track, std::int32_t first, std::int32_t last)
    {
        for (std::int32_t cell = first; cell <= last; ++cell)
            At(TrackOf(track).Painted, cell) = 1;
        canvas->DrawTracksAll();
    }

    QWidget& Part(const char* name) const { return *window.findChild<QWidget*>(QString::fromLatin1(name)); }
    QWidget& Pic() const { return Part("TrackPic"); }
    QWidget& Strip() const { return Part("TrackTitlePic"); }
    QScrollBar& Scroll(const char* name) const { return *window.findChild<QScrollBar*>(QString::fromLatin1(name)); }
    bool IsShown(const char* name) const { return Part(name).isVisible(); }

    /// What a surface shows now, including the widgets on it.
    static QImage Shown(QWidget& part) { return part.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    static QColor ColourAt(QWidget& part, int x, int y) { return Shown(part).pixelColor(x, y); }

    static int CellX(std::int32_t cell, std::int32_t firstCell = 1) { return (cell - firstCell) * 3; }
    static int RowY(std::int32_t row) { return (row - 1) * 46 + 20; }
    /// In the middle of a row's painted area.
    static QPoint InRow(int x, std::int32_t row) { return {x, RowY(row) + 23}; }

    void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton) { QTest::mousePress(&Pic(), button, {}, at); }
    void MoveTo(QPoint at) { QTest::mouseMove(&Pic(), at); }
    void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton) { QTest::mouseRelease(&Pic(), button, {}, at); }
    void Hover(int x, int y) { QTest::mouseMove(&Strip(), QPoint(x, y)); }

    static std::vector<std::int32_t> Painted(std::int32_t track, std::int32_t first, std::int32_t last)
    {
        const auto& cells = TrackOf(track).Painted;
        return {cells.begin() + first, cells.begin() + last + 1};
    }

    FakeServices services;
    std::vector<std::string> asked;
    std::string cellText;
    int titlePlays = 0;
    QLabel statusLbl;
    QWidget window;
    ButtonScheme scheme{window, AllOffTimer::OffAtFirst};
    TrackCanvas* canvas = nullptr;
};

} // namespace sprout
