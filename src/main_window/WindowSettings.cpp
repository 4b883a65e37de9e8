// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WindowSettings.h"

#include <QScreen>
#include <QWidget>

#include <string>
#include <string_view>

#include "core/Settings.h"
#include "main_window/rules/WindowPlace.h"
#include "ui/widgets/PutAt.h"

namespace sprout {

namespace {

constexpr std::string_view kPlaceSection = "MainWindow";

} // namespace

void TakePlaceFromSettings(QWidget& window)
{
    const QSize screenSize = window.screen()->size();
    PutAt(window,
          PlaceFromSettings(GetSetting(kPlaceSection, "Size", "-1,-1"), GetSetting(kPlaceSection, "Position", "-1,-1"),
                            screenSize.width(), screenSize.height()));
    if (IsMaximizedSetting(GetSetting(kPlaceSection, "WindowState", "2")))
        window.setWindowState(Qt::WindowMaximized);
}

void WritePlaceToSettings(const QWidget& window, bool desktopPlaces)
{
    PutSetting(kPlaceSection, "WindowState", window.isMinimized() ? "1" : window.isMaximized() ? "2" : "0");
    if (window.isMinimized() || window.isMaximized())
        return;
    const std::string size = PairOfTwips(window.width(), window.height());
    if (desktopPlaces)
        PutSetting(kPlaceSection, "Size", size);
    else
        PutSettings(kPlaceSection, {{"Position", PairOfTwips(window.x(), window.y())}, {"Size", size}});
}

} // namespace sprout
