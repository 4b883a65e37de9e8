// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/Shared.h"
#include "songs/OpenSaveClass.h"
#include "support/FakeServices.h"
#include "support/HandArray.h"

namespace sprout {

/// Songs on disk and the shared song.
class SongFilesTest : public testing::Test {
protected:
    [[nodiscard]] static std::filesystem::path Path() { return Shared().UserSongs / "Song.TqSng"; }

    static SongState& LoadBytes(const std::string& bytes)
    {
        std::filesystem::remove(Path()); // emptying and rewriting a file would wait for the disk
        WriteBytes(Path(), bytes);
        OpenSaveClass().Load_Song(Path());
        return Shared().Song;
    }

    static SongState& LoadArray(const HandArray& array, const std::string& version = "2")
    {
        return LoadBytes(FileOf("TqSng", version, array.Elements()));
    }

    static std::string SaveBytes()
    {
        OpenSaveClass(Flush::No).Save_Song(Path());
        return ReadBytes(Path());
    }

    /// The messages so far, each as title, bar and text.
    [[nodiscard]] std::vector<std::string> Told() const
    {
        std::vector<std::string> told;
        for (const FakeMessages::Shown& shown : services.messages.shown)
            told.push_back(shown.title + "|" + shown.text);
        return told;
    }

    FakeServices services;
};

} // namespace sprout
