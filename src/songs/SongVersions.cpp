// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongVersions.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/Errors.h"
#include "core/FileHead.h"

namespace sprout {

namespace {

constexpr std::array kSongVersions{SongVersion{2.0F, Load_Song_V20, Load_Paint_V20},
                                   SongVersion{1.1F, Load_Song_V11, Load_Paint_V11},
                                   SongVersion{1.0F, Load_Song_V10, Load_Paint_V10}};

} // namespace

const SongVersion* FindSongVersion(ByteSource& source)
{
    const float number = FileVersion(source);
    const auto* const found = std::find_if(kSongVersions.begin(), kSongVersions.end(),
                                           [&](const SongVersion& version) { return version.number == number; });
    return found == kSongVersions.end() ? nullptr : found;
}

LongsReader SongArray(ByteSource& source)
{
    const std::optional<std::uint64_t> begin = FindHeadData(source);
    if (!begin)
        throw RunTimeError(Words::Text("Failed to find Data"));
    return {source, *begin};
}

} // namespace sprout
