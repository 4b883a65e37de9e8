// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// The side of the sound that a desktop's control shows.
enum class SoundControl { Play, Record };

/// What the user's desktop knows.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// The user's documents folder, made if it is missing; empty where there is none and none can be made.
    [[nodiscard]] virtual std::filesystem::path DocumentsFolder() const = 0;
    /// Hands a file or an address to the program that the desktop opens it with. Errors are ignored.
    virtual void OpenWithShell(std::string_view target) = 0;
    /// Starts the desktop's own control of volumes, or its sound settings. Returns nothing where one was started, else
    /// the names of the programs that were looked for, at least one.
    [[nodiscard]] virtual std::vector<std::string> OpenSoundControl(SoundControl control) = 0;
};

} // namespace sprout
