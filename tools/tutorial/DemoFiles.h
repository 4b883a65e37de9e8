// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/IniFile.h"
#include "ui/rules/Box.h"

namespace sprout {

/// A slide that was made.
struct MadeSlide {
    std::string Picture; ///< name of its file
    Box Rectangle;       ///< where it is clicked or dragged, in the picture
    std::string Action;  ///< "click", "drag" or "wait"
    double Seconds = 0;  ///< 0 if it waits for the child
    std::string Text;    ///< of its bubble
};

/// Lists of demos and of their sentences, as the program reads them.
class DemoFiles {
public:
    /// number: from 1 to 9: the keys of a tenth demo would be those of others.
    void Add(std::int32_t number, std::string_view name, std::span<const MadeSlide> slides);

    /// Writes both lists, `TqDemoImages.ini` and `TqDemoTexts.ini`. Throws `RunTimeError`.
    void Write(const std::filesystem::path& folder) const;
    /// Adds what another process has written.
    void Read(const std::filesystem::path& folder, std::int32_t number);

private:
    IniFile demos;
    IniFile texts;
    std::int32_t count = 0;
};

} // namespace sprout
