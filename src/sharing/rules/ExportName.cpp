// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/ExportName.h"

#include "base/FilePaths.h"
#include "base/Text.h"

namespace sprout {

namespace {

constexpr std::size_t kLongestFileName = 255; // bytes, on all usual file systems

} // namespace

std::filesystem::path WithExtension(const std::filesystem::path& path, std::string_view extension)
{
    const std::string& text = path.native();
    const bool ends = text.size() >= extension.size() &&
                      EqualIgnoringCase(std::string_view(text).substr(text.size() - extension.size()), extension);
    return ends ? path : std::filesystem::path(text + std::string(extension));
}

std::string OfferedName(std::string_view songTitle, std::string_view extension)
{
    const std::string name = SafeFileName(songTitle);
    return std::string(CharactersInBytes(name, kLongestFileName - extension.size())) + std::string(extension);
}

} // namespace sprout
