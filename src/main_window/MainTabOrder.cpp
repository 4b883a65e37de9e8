// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainTabOrder.h"

#include <QWidget>

namespace sprout {

void SetMainTabOrder(const QWidget& window)
{
    // The song's controls follow the buttons in the order of the window, from the bar's tools to the tracks' titles;
    // then the window's own buttons. The tracks, which have the initial focus, are last: the first Tab leads to the
    // first button.
    auto* before = window.findChild<QWidget*>(QStringLiteral("DemoBtn"));
    for (const char* name : {"TempoPrtImg", "Label5", "Label1", "TrackTitlePic", "TrackAddBtn", "TrackAddRecBtn",
                             "CloseImgBtn", "MaximizeImgBtn", "MinimizeImgBtn", "RestoreImgBtn", "TrackPic"}) {
        auto* next = window.findChild<QWidget*>(QString::fromLatin1(name));
        QWidget::setTabOrder(before, next);
        before = next;
    }
}

} // namespace sprout
