// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// True on the very first start, when the user is to be welcomed. It is noted at once in the setting `WelcomeShown`, so
/// the user is welcomed once, also where starts cannot be counted; an administrator's setting prevents it. Call it
/// before `OpenSampleSong`, which counts the start.
[[nodiscard]] bool TakeFirstWelcome();

} // namespace sprout
