// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FakeServices.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <new>

#include "base/Errors.h"
#include "core/Paths.h"

namespace sprout {

namespace {

Picture OneColour(std::uint32_t colour)
{
    return {kPictureSide, kPictureSide, std::vector<std::uint32_t>(kPicturePixels, colour)};
}

} // namespace

Picture FakePictureFiles::LoadPicture(const std::filesystem::path& path) const
{
    const std::string bytes = ReadBytes(path);
    if (bytes.starts_with("bad"))
        throw RunTimeError(Words::Text("The picture %1 cannot be read.", path.native()));
    return OneColour(static_cast<std::uint32_t>(bytes.size()));
}

std::vector<std::byte> FakePictureFiles::EncodeBmp(const Picture& picture) const
{
    return std::vector<std::byte>(picture.Pixel(0, 0), std::byte{'p'});
}

void FakePictureFiles::SavePicture(const Picture& picture, const std::filesystem::path& path) const
{
    WriteBytes(path, std::string(picture.Pixel(0, 0), 'p'));
}

std::vector<std::int16_t> FakeStretch::Change(std::span<const std::int16_t> samples, std::int32_t rate,
                                              float pitchFactor, float durationFactor) const
{
    {
        const std::lock_guard lock(mutex);
        calls.push_back({pitchFactor, durationFactor, rate, samples.size()});
    }
    if (fails)
        return {};
    if (lacksMemory)
        throw std::bad_alloc();
    std::vector<std::int16_t> result(
        static_cast<std::size_t>(std::lround(static_cast<double>(samples.size()) * durationFactor)));
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = samples[i * samples.size() / result.size()];
    return result;
}

std::vector<FakeStretch::Call> FakeStretch::Calls() const
{
    const std::lock_guard lock(mutex);
    return calls;
}

FakeServices::FakeServices()
{
    TheServices() = {&messages, &screen, &files, &machine, &desktop, &pictures, &stretch, &sound, &playDisplay};
    TheServices().wma = &wma;
    TheServices().mail = &mail;
    TheServices().privateFolders = &privateFolders;
    TheServices().folderCopies = &folderCopies;
    TheServices().soundReader = &soundReader;
    TheServices().capture = &capture;
    Shared() = SharedState();
    SharedState& shared = Shared();
    shared.BlankPic = OneColour(0x000001);
    shared.BlankStarPic = OneColour(0x000002);
    shared.DefaultTunePicture = OneColour(0x000003);
    shared.NewTunePicture = OneColour(0x000004);
    shared.TempFolder = folder.Path() / "temp";
    shared.ProgramFolder = folder.Path() / "program";
    shared.SettingsFile = shared.ProgramFolder / "sprout-painter.ini";
    SetUserRoot(folder.Path() / "user");
    for (const auto& made : {shared.TempFolder, shared.ProgramFolder, shared.UserBeats, shared.UserTunes,
                             shared.UserStars, shared.UserSongs})
        std::filesystem::create_directories(made);
}

FakeServices::~FakeServices()
{
    TheServices() = Services();
    Shared() = SharedState();
}

} // namespace sprout
