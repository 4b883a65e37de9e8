// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/ToolCursor.h"

#include <QPoint>

#include <algorithm>
#include <array>

#include "ui/look/Artwork.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr QSize kPointerSize{32, 32};

struct ToolTip {
    std::string_view button;
    QPoint tip; ///< in the picture, at the pointer's size
};

constexpr std::array kToolTips{
    ToolTip{"BrushBtn", QPoint(6, 26)},
    ToolTip{"EraserBtn", QPoint(7, 25)},
    ToolTip{"PlayToolBtn", QPoint(7, 5)},
};

} // namespace

QCursor ToolCursor(std::string_view button, qreal pixelRatio)
{
    const auto* tool = std::find_if(kToolTips.begin(), kToolTips.end(),
                                    [button](const ToolTip& candidate) { return candidate.button == button; });
    if (tool == kToolTips.end())
        return {};
    const QPixmap picture = Artwork(QStringLiteral("buttons/") + QtText(button), kPointerSize, pixelRatio);
    return QCursor(picture, tool->tip.x(), tool->tip.y());
}

} // namespace sprout
