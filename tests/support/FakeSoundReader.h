// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/Paths.h"
#include "service/SoundReader.h"
#include "support/TestFolder.h"

namespace sprout {

/// A reader that converts every sound to the same wave and logs its calls.
class FakeSoundReader : public SoundReader {
public:
    [[nodiscard]] Converted Convert(const std::filesystem::path& sound, std::int32_t mostSeconds, TooLong tooLong,
                                    const Progress& progress) override
    {
        calls.push_back({sound, mostSeconds, tooLong});
        progress(1, 2);
        if (outcome != Conversion::Done)
            return {outcome, nullptr};
        auto made = std::make_unique<Wave>(NewTempFileName("wav"));
        WriteBytes(made->Path(), wave);
        return {outcome, std::move(made)};
    }

    struct Call {
        std::filesystem::path sound;
        std::int32_t mostSeconds = 0;
        TooLong tooLong = TooLong::Cut;
        friend bool operator==(const Call&, const Call&) = default;
    };
    std::vector<Call> calls;
    Conversion outcome = Conversion::Unreadable;
    std::string wave; ///< the bytes of the resulting WAV file

private:
    class Wave : public ConvertedWave {
    public:
        explicit Wave(std::filesystem::path file) : path(std::move(file)) {}
        Wave(const Wave&) = delete;
        Wave& operator=(const Wave&) = delete;
        ~Wave() override { std::filesystem::remove(path); }
        [[nodiscard]] const std::filesystem::path& Path() const override { return path; }

    private:
        std::filesystem::path path;
    };
};

} // namespace sprout
