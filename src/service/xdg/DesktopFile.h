// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// What a .desktop file says about its program.
struct DesktopFile {
    std::string Exec; ///< the command line, with the escapes that `ExecWords` expects
    std::vector<std::string> Categories;
};

/// Reads the group "Desktop Entry" of a .desktop file's text. The first of two equal keys counts; missing values are
/// empty.
[[nodiscard]] DesktopFile ParseDesktopFile(std::string_view text);

/// True for a program that opens every address as a page, including mail addresses.
[[nodiscard]] bool IsWebBrowser(const DesktopFile& file);

/// The words of a command line as the Desktop Entry standard defines them: blanks separate words; double quotes hold
/// one together, and a backslash inside them escapes `"`, `` ` ``, `$` and `\`. Codes for files and addresses are
/// dropped, as are the marks "@@" and "@@u" around those that Flatpak passes on; "%%" is a percent sign.
[[nodiscard]] std::vector<std::string> ExecWords(std::string_view exec);

} // namespace sprout
