// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <QTest>

#include <string>
#include <vector>

#include "core/Shared.h"
#include "recording/WavePic.h"
#include "recording/rules/WaveMaker.h"
#include "support/FakeServices.h"
#include "ui/look/Palette.h"

namespace sprout {

inline constexpr QSize kWavePicSize{101, 65};

/// A picture of 101 x 65 pixels: the samples of a wave of 100 are one pixel apart, the zero line is row 32.
class WavePicFixture : public testing::Test {
protected:
    WavePicFixture()
    {
        window.resize(200, 100);
        pic.setGeometry(10, 10, kWavePicSize.width(), kWavePicSize.height());
        window.show();
        QApplication::setActiveWindow(&window);
        pic.setFocus();
        QObject::connect(&pic, &WavePic::Pressed, [this](double x) { Note("press", x); });
        QObject::connect(&pic, &WavePic::Moved, [this](double x) { Note("move", x); });
        QObject::connect(&pic, &WavePic::Released, [this](double x) { Note("release", x); });
        QObject::connect(&pic, &WavePic::AllWanted, [this] { noted.emplace_back("all"); });
        QObject::connect(&pic, &WavePic::CursorMoved, [this](WaveMove move, WaveKeep keep) {
            noted.push_back(std::to_string(static_cast<int>(move)) + (keep == WaveKeep::Selection ? " selects" : ""));
        });
    }

    void Note(const char* what, double x) { noted.push_back(what + (" " + std::to_string(static_cast<int>(x)))); }

    void Show(const WaveData& wave)
    {
        view.FitAll = true;
        pic.Show(DrawWaveform(wave, pic.ScaleSize(), view));
    }

    /// The pixel as it appears on the screen.
    [[nodiscard]] QColor Pixel(int x, int y) { return pic.grab().toImage().pixelColor(x, y); }

    static QColor Back() { return ColourOf(Shared().WaveColours.NormalBackColor); }
    static QColor Selected() { return ColourOf(Shared().WaveColours.SelectBackColor); }
    static QColor Centre() { return ColourOf(Shared().WaveColours.CenterLineColor); }
    static QColor LeftColour() { return ColourOf(Shared().WaveColours.WaveFormNormalColorL); }
    static QColor RightColour() { return ColourOf(Shared().WaveColours.WaveFormNormalColorR); }

    FakeServices services;
    QWidget window;
    WavePic pic{&window};
    WaveView view;
    std::vector<std::string> noted;
};

} // namespace sprout
