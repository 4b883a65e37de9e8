// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoFolder.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "base/Guarded.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "demo/rules/DemoFile.h"
#include "service/PictureFiles.h"
#include "service/Services.h"

namespace sprout {

namespace {

constexpr const char* kDemoFileName = "TqDemoImages.ini";
constexpr const char* kDemoTextsName = "TqDemoTexts.ini";

/// The file in `DemoImages` with this name, ignoring letter case; empty if there is none.
std::filesystem::path PictureFile(std::string_view name)
{
    return FindFile(NamedFile(Shared().DemoImages, name, {}));
}

} // namespace

IniFile ReadDemoFile()
{
    return IniFile::Read(Shared().DemoImages / kDemoFileName);
}

IniFile ReadDemoTexts()
{
    return IniFile::Read(Shared().DemoImages / kDemoTextsName);
}

std::vector<std::string> DemoNames()
{
    std::vector<std::string> names;
    for (DemoName& demo : ReadDemoNames(ReadDemoFile()))
        names.push_back(std::move(demo.Name));
    return names;
}

Picture LoadDemoPicture(std::string_view name)
{
    Picture picture;
    GuardedQuietly("Loading a picture of a demo", [&picture, name] {
        const std::filesystem::path file = PictureFile(name);
        if (file.empty())
            throw RunTimeError(Words::Text("The picture %1 cannot be read.", name));
        picture = TheServices().pictures->LoadPicture(file);
    });
    return picture;
}

Picture LoadSharpDemoPicture(std::string_view name)
{
    Picture picture;
    GuardedQuietly("Loading a sharp picture of a demo", [&picture, name] {
        const std::filesystem::path plain(name);
        const std::filesystem::path file = PictureFile(BaseName(plain) + "@2x" + plain.extension().string());
        if (!file.empty())
            picture = TheServices().pictures->LoadPicture(file);
    });
    return picture;
}

std::filesystem::path DemoSoundOf(std::string_view pictureName)
{
    const std::string wanted = LowerCase(BaseName(std::filesystem::path(pictureName)));
    const std::vector<FolderFile> sounds = FilesInFolder(Shared().DemoImages, kWaveExtension);
    const auto found = std::find_if(sounds.begin(), sounds.end(),
                                    [&wanted](const FolderFile& sound) { return LowerCase(sound.Name) == wanted; });
    return found == sounds.end() ? std::filesystem::path() : found->Path;
}

} // namespace sprout
