// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Opens the help book at its first page, in a window of its own that stays open beside the others. Called again, it
/// brings that window to the front.
void ShowHelp();

} // namespace sprout
