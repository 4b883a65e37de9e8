// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "service/Desktop.h"

namespace sprout {

/// `Desktop` on the conventions of freedesktop.org and on xdg-open.
class XdgDesktop : public Desktop {
public:
    /// The folder named XDG_DOCUMENTS_DIR in the user's user-dirs.dirs, else Documents in the home folder.
    [[nodiscard]] std::filesystem::path DocumentsFolder() const override;
    /// XDG_CONFIG_HOME, else .config in the home folder.
    [[nodiscard]] std::filesystem::path ConfigFolder() const override;
    void OpenWithShell(std::string_view target) override;
    /// Looks on the PATH for pavucontrol, then for the sound settings of the desktop named by XDG_CURRENT_DESKTOP.
    [[nodiscard]] std::vector<std::string> OpenSoundControl(SoundControl control) override;
};

/// The documents folder that the lines of a user-dirs.dirs name; empty if they name none, or if they name the home
/// folder itself, which is how users switch it off.
[[nodiscard]] std::filesystem::path DocumentsOfUserDirs(std::string_view lines, const std::filesystem::path& home);

} // namespace sprout
