// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <exception>
#include <filesystem>
#include <optional>
#include <span>
#include <system_error>
#include <vector>

#include "base/Errors.h"
#include "service/Services.h"
#include "sprout-song/Commands.h"
#include "sprout-song/Loading.h"
#include "sprout-song/ThumbnailPicture.h"
#include "sprout-song/ThumbnailPlan.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::int32_t kUsualSide = 256;
constexpr std::int32_t kLargestSide = 2048;

} // namespace

bool RunThumbnail(Session& session, const Arguments& arguments)
{
    arguments.RequireWords(2, "thumbnail SONG OUT.png");
    const fs::path in = arguments.Words()[0];
    const fs::path out = arguments.Words()[1];
    const std::int32_t side = arguments.Number("--size", kThumbnailSmallestSide, kLargestSide).value_or(kUsualSide);
    std::error_code noFile;
    if (fs::equivalent(in, out, noFile)) {
        session.Fail(Words::Text("Error Saving File"), Words::Text("The picture would replace the song."));
        return false;
    }
    const std::optional<SongState> paint = LoadSongPaint(session, in, kThumbnailTracks);
    if (!paint)
        return false;
    try {
        const std::vector<std::byte> picture = DrawThumbnail(*paint, side);
        TheServices().files->ReplaceFile(out, std::array{std::span(picture)}, Flush::No);
    } catch (const std::exception& error) {
        session.Fail(Words::Text("Error Saving File"), ErrorWords(error));
        return false;
    }
    return true;
}

} // namespace sprout
