// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <future>

namespace sprout {

/// Reads the machine's fontconfig settings and its list of fonts in a thread of its own, where there is one to be had.
/// Qt reads them with its first font and waits some ms for them; called before `QApplication` is made, this hides them
/// behind its connection to the display. A machine without them is Qt's to deal with.
[[nodiscard]] std::future<void> ReadFontListAhead();

} // namespace sprout
