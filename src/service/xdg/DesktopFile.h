// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// What a .desktop file tells of its program.
struct DesktopFile {
    std::string Exec; ///< the command line, its escapes as `ExecWords` takes them
    std::vector<std::string> Categories;
};

/// Reads the group "Desktop Entry" of a .desktop file's text. Of two equal keys the first one counts; what is not
/// there is empty.
[[nodiscard]] DesktopFile ParseDesktopFile(std::string_view text);

/// True for a program that opens every address, mail addresses among them, as a page.
[[nodiscard]] bool IsWebBrowser(const DesktopFile& file);

/// The words of a command line as the Desktop Entry standard tells them: blanks part them, double quotes hold one
/// together, in which a backslash stands before `"`, `` ` ``, `$` and `\`. Codes for files and addresses are dropped,
/// as are the marks "@@" and "@@u" around those that Flatpak is to pass on; "%%" is a percent sign.
[[nodiscard]] std::vector<std::string> ExecWords(std::string_view exec);

} // namespace sprout
