// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Picture.h"
#include "core/IniFile.h"

namespace sprout {

/// The list of demos and slides, `TqDemoImages.ini` in `DemoImages`; empty if it is missing.
[[nodiscard]] IniFile ReadDemoFile();
/// The sentences for screen readers, `TqDemoTexts.ini` beside it; empty if it is missing.
[[nodiscard]] IniFile ReadDemoTexts();

/// The names of all installed demos.
[[nodiscard]] std::vector<std::string> DemoNames();

/// A picture of `DemoImages`. Nothing if it cannot be loaded, or if its name would lead out of the folder; the reason
/// is logged.
[[nodiscard]] Picture LoadDemoPicture(std::string_view name);

/// The same picture at twice the size, for screens with small pixels: "NAME@2x.png" beside "NAME.png". Nothing if there
/// is none, or if it cannot be loaded.
[[nodiscard]] Picture LoadSharpDemoPicture(std::string_view name);

/// The wave in `DemoImages` with the base name of a picture, ignoring letter case; empty if there is none.
[[nodiscard]] std::filesystem::path DemoSoundOf(std::string_view pictureName);

} // namespace sprout
