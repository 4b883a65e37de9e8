// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <stop_token>
#include <vector>

#include "posix/Descriptor.h"
#include "service/SoundCapture.h"

namespace sprout {

/// Limits of a capture.
struct CaptureLimits {
    std::int64_t mostFrames = (std::int64_t{1} << 29) - 11;
    std::uint64_t leastFreeBytes = 64'000'000; ///< free disk space
};

/// The two files of a capture, one per channel: raw, 16 bits, low byte first. They stay locked while this object lives.
class CaptureFiles {
public:
    /// Creates both. Returns nothing if one cannot be created or already exists, or if too little disk space is free.
    [[nodiscard]] static std::unique_ptr<CaptureFiles>
    Make(const std::filesystem::path& left, const std::filesystem::path& right, const CaptureLimits& limits);

    CaptureFiles(const CaptureFiles&) = delete;
    CaptureFiles& operator=(const CaptureFiles&) = delete;
    /// The files are kept.
    ~CaptureFiles() = default;

    /// samples: left and right interleaved. Any result but `None` ends the capture: both files then hold the frames
    /// that both could take, and nothing more may be written.
    [[nodiscard]] CaptureEnd Write(std::span<const std::int16_t> samples);
    [[nodiscard]] std::int64_t Frames() const { return frames; }
    /// Deletes both, unless something else is in their place.
    void Delete();

private:
    struct OneFile {
        std::filesystem::path path;
        Descriptor file;
        std::vector<std::int16_t> samples; // being written
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
    std::int64_t nextLookAtDisk = 0; // a frame count
};

/// Deletes the user's own capture files in `folder` (TqkTmp and a number, .WavL or .WavR) that no running program
/// holds. Does not follow links.
void DeleteLeftCaptureFiles(const std::filesystem::path& folder, const std::stop_token& stop = {});

} // namespace sprout
