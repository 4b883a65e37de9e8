// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WindowSettings.h"

#include <QScreen>
#include <QWidget>

#include <string_view>

#include "core/Settings.h"
#include "main_window/rules/WindowPlace.h"

namespace sprout {

namespace {

constexpr std::string_view kPlaceSection = "MainWindow";

} // namespace

void TakePlaceFromSettings(QWidget& window)
{
    const QSize screenSize = window.screen()->size();
    const WindowPlace place =
        PlaceFromSettings(GetSetting(kPlaceSection, "Size", "-1,-1"), GetSetting(kPlaceSection, "Position", "-1,-1"),
                          screenSize.width(), screenSize.height());
    window.setGeometry(place.left, place.top, place.width, place.height);
    if (IsMaximizedSetting(GetSetting(kPlaceSection, "WindowState", "2")))
        window.setWindowState(Qt::WindowMaximized);
}

void WritePlaceToSettings(const QWidget& window)
{
    PutSetting(kPlaceSection, "WindowState", window.isMinimized() ? "1" : window.isMaximized() ? "2" : "0");
    if (window.isMinimized() || window.isMaximized())
        return;
    PutSettings(kPlaceSection, {{"Position", PairOfTwips(window.x(), window.y())},
                                {"Size", PairOfTwips(window.width(), window.height())}});
}

} // namespace sprout
