// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <future>

namespace sprout {

/// Reads the machine's fontconfig settings and its list of fonts in a separate thread, if one can be started. Qt reads
/// them with its first font, which takes some ms; if this is called before `QApplication` is created, that time is
/// hidden behind Qt's connection to the display. If they are missing, Qt deals with it.
[[nodiscard]] std::future<void> ReadFontListAhead();

} // namespace sprout
