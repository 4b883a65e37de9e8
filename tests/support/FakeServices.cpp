// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FakeServices.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <new>

#include "core/Errors.h"
#include "core/Paths.h"

namespace sprout {

namespace {

class FakeBlock : public StretchedBlock {
public:
    std::vector<std::int16_t> samples;
};

Picture OneColour(std::uint32_t colour)
{
    return {kPictureSide, kPictureSide, std::vector<std::uint32_t>(kPicturePixels, colour)};
}

} // namespace

Picture FakePictureFiles::LoadPicture(const std::filesystem::path& path) const
{
    const std::string bytes = ReadBytes(path);
    if (bytes.starts_with("bad"))
        throw RunTimeError("The picture " + path.native() + " cannot be read.");
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

bool FakeStretch::Tq5Service02(StretchHandle& handle, float pitchFactor, float durationFactor, std::int32_t rate,
                               std::span<const std::int16_t> samples, std::int32_t& size) const
{
    {
        const std::lock_guard lock(mutex);
        calls.push_back({pitchFactor, durationFactor, rate, samples.size()});
    }
    if (fails)
        return false;
    if (lacksMemory)
        throw std::bad_alloc();
    auto block = std::make_unique<FakeBlock>();
    block->samples.resize(static_cast<std::size_t>(std::lround(static_cast<double>(samples.size()) * durationFactor)));
    for (std::size_t i = 0; i < block->samples.size(); ++i)
        block->samples[i] = samples[i * samples.size() / block->samples.size()];
    size = static_cast<std::int32_t>(block->samples.size());
    handle = std::move(block);
    return true;
}

bool FakeStretch::Tq5Service02a(StretchHandle handle, std::int32_t& size, std::span<std::int16_t> samples) const
{
    const auto* block = dynamic_cast<const FakeBlock*>(handle.get());
    if (secondFails || !block || block->samples.size() > samples.size())
        return false;
    std::copy(block->samples.begin(), block->samples.end(), samples.begin());
    size = static_cast<std::int32_t>(block->samples.size());
    return true;
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
