// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// Which side of the sound a desktop's control shows.
enum class SoundControl { Play, Record };

/// What the user's desktop provides.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// The user's documents folder, created if missing; empty if there is none and none can be created.
    [[nodiscard]] virtual std::filesystem::path DocumentsFolder() const = 0;
    /// The folder in which the user's programs keep their settings; may be missing. Empty if there is none.
    [[nodiscard]] virtual std::filesystem::path ConfigFolder() const = 0;
    /// Opens a file or an address with the desktop's program for it. Errors are ignored.
    virtual void OpenWithShell(std::string_view target) = 0;
    /// Starts the desktop's own volume control or its sound settings. Returns an empty list if one was started,
    /// otherwise the names of the programs that were looked for, at least one.
    [[nodiscard]] virtual std::vector<std::string> OpenSoundControl(SoundControl control) = 0;
};

} // namespace sprout
