// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/fontconfig/FontList.h"

#include <fontconfig/fontconfig.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "support/TestFolder.h"

namespace sprout {
namespace {

/// Restores the machine's settings at its end.
class FontList : public ::testing::Test {
protected:
    ~FontList() override
    {
        unsetenv("FONTCONFIG_FILE");
        FcFini();
    }

    TestFolder folder;
};

TEST_F(FontList, IsThereBeforeTheFirstFontIsAskedFor)
{
    const std::string fonts = (folder.Path() / "fonts").string();
    const std::string settings = (folder.Path() / "fonts.conf").string();
    WriteBytes(settings, "<?xml version=\"1.0\"?><fontconfig><dir>" + fonts + "</dir></fontconfig>");
    setenv("FONTCONFIG_FILE", settings.c_str(), 1);
    FcFini();
    ReadFontListAhead().get();

    // If the list were not there yet, this would read another one.
    unsetenv("FONTCONFIG_FILE");
    FcStrList* const folders = FcConfigGetFontDirs(nullptr);
    const FcChar8* const first = FcStrListNext(folders);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(reinterpret_cast<const char*>(first), fonts);
    EXPECT_EQ(FcStrListNext(folders), nullptr);
    FcStrListDone(folders);
}

} // namespace
} // namespace sprout
