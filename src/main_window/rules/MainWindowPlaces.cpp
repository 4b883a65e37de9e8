// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/MainWindowPlaces.h"

#include "main_window/rules/TrackGeometry.h"
#include "main_window/rules/WelcomePlaces.h"

namespace sprout {

namespace {

constexpr std::int32_t kCornerSide = kWindowFrame + kStatusBarHeight;
constexpr std::int32_t kCornerLine = 2; ///< the left corner does not cover the window's line

} // namespace

std::int32_t ControlBarWidth(std::int32_t windowWidth)
{
    return windowWidth - 2 * kWindowFrame;
}

MainWindowPlaces PlaceMainWindow(std::int32_t width, std::int32_t height, std::int32_t barHeight, WelcomeStrip welcome)
{
    const std::int32_t inner = ControlBarWidth(width);
    const std::int32_t statusTop = height - kWindowFrame - kStatusBarHeight;
    const std::int32_t canvasTop = kTitleBandHeight + barHeight;
    const std::int32_t cornerTop = height - kCornerSide;
    MainWindowPlaces places;
    places.hasStatus = CanvasShowsARow(statusTop - kWindowFrame - canvasTop);
    std::int32_t canvasBottom = places.hasStatus ? statusTop - kWindowFrame : height - kWindowFrame;
    const std::int32_t welcomeTop = canvasBottom - kWelcomeHeight;
    if (welcome == WelcomeStrip::Shown && places.hasStatus && CanvasShowsARow(welcomeTop - kWindowFrame - canvasTop)) {
        places.welcome = {kWindowFrame, welcomeTop, inner, kWelcomeHeight};
        canvasBottom = welcomeTop - kWindowFrame;
    }
    places.titleBand = {0, 0, width, kTitleBandHeight};
    places.controlBar = {kWindowFrame, kTitleBandHeight, inner, barHeight};
    places.canvas = {kWindowFrame, canvasTop, inner, canvasBottom - canvasTop};
    places.statusBar = {kCornerSide + kWindowFrame, statusTop, width - 2 * (kCornerSide + kWindowFrame),
                        kStatusBarHeight};
    places.leftCorner = {kCornerLine, cornerTop, kCornerSide - kCornerLine, kCornerSide - kCornerLine};
    places.rightCorner = {width - kCornerSide, cornerTop, kCornerSide - kCornerLine, kCornerSide - kCornerLine};
    return places;
}

} // namespace sprout
