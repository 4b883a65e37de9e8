// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <string>
#include <vector>

namespace sprout {

/// The rectangle on the screen of a control, or of a place in one, in the window in front. Throws `RunTimeError` if it
/// is not there or not in view.
///
/// The words are the control's name, or one of
///     row NUMBER tune|delete|play      a part of a track's title
///     cell TRACK NUMBER                a cell of a track, in the middle
///     picture NAME                     a picture of a grid
///     step NUMBER lamp|icon            a part of a step
///     step NUMBER key SEMITONES        a key of its keyboard
///     line TEXT                        a line of a list
///     at CONTROL X Y                   a point of a control, in percent of its size
[[nodiscard]] QRect FindPlace(const std::vector<std::string>& words);

} // namespace sprout
