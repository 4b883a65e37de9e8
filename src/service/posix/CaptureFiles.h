// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <stop_token>
#include <vector>

#include "service/SoundCapture.h"
#include "service/posix/Descriptor.h"

namespace sprout {

/// What ends a capture.
struct CaptureLimits {
    std::int64_t mostFrames = (std::int64_t{1} << 29) - 11;
    std::uint64_t leastFreeBytes = 64'000'000; ///< of the disk
};

/// The two files of a capture, a channel each: raw, 16 bits, low byte first. They are locked until this object goes.
class CaptureFiles {
public:
    /// Makes both. Nothing where one cannot be made or exists, or where too little of the disk is free.
    [[nodiscard]] static std::unique_ptr<CaptureFiles>
    Make(const std::filesystem::path& left, const std::filesystem::path& right, const CaptureLimits& limits);

    CaptureFiles(const CaptureFiles&) = delete;
    CaptureFiles& operator=(const CaptureFiles&) = delete;
    /// The files stay.
    ~CaptureFiles() = default;

    /// samples: left and right in turn. What it answers but `None` ends the capture: then both files hold the frames
    /// that both could take, and nothing may be written any more.
    [[nodiscard]] CaptureEnd Write(std::span<const std::int16_t> samples);
    [[nodiscard]] std::int64_t Frames() const { return frames; }
    /// Deletes both, unless something else stands in their place.
    void Delete();

private:
    struct OneFile {
        std::filesystem::path path;
        Descriptor file;
        std::vector<std::int16_t> samples; // of the write
    };

    CaptureFiles(OneFile leftFile, OneFile rightFile, const CaptureLimits& captureLimits);
    [[nodiscard]] static OneFile MakeFile(const std::filesystem::path& path);
    [[nodiscard]] static bool WriteAll(const OneFile& file);
    static void DeleteFile(const OneFile& file);
    [[nodiscard]] bool DiskIsFull() const;
    void CutToWholeFrames() const;

    OneFile left;
    OneFile right;
    const CaptureLimits limits;
    std::int64_t frames = 0;
    std::int64_t nextLookAtDisk = 0; // a number of frames
};

/// Deletes the user's own capture files in `folder` (TqkTmp and a number, .WavL or .WavR) that no running program
/// holds. Follows no link.
void DeleteLeftCaptureFiles(const std::filesystem::path& folder, const std::stop_token& stop = {});

} // namespace sprout
