// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <array>

#include "main_window/rules/EdgeDrag.h"
#include "main_window/rules/MainWindowPlaces.h"

namespace sprout {

class EdgeGrip;
class GroundWatch;
class HintWatcher;

/// The frame of a window that has none of the system: a line around it, vines in its lower corners (`Corner3Pic`,
/// `Corner4Pic`), and edges to drag, which resize it.
class WindowFrame {
public:
    /// The parts belong to the window. Moves over the edges and over the left corner count as moves over the ground.
    WindowFrame(QWidget& window, HintWatcher& watcher, GroundWatch& ground);

    void Place(const MainWindowPlaces& places);
    /// A maximised window has no edges to drag.
    void ShowMaximized(bool maximized);

    /// Draws the background of the window, and the line around it unless it is maximised.
    static void Paint(QWidget& window);

private:
    std::array<QWidget*, 2> corners{};
    std::array<EdgeGrip*, kWindowGrips.size()> grips{};
};

} // namespace sprout
