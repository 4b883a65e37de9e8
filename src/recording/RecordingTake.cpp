// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/RecordingTake.h"

#include <system_error>

#include "core/Busy.h"
#include "core/Paths.h"
#include "recording/Recd_Mod.h"

namespace sprout {

RecordingTake::RecordingTake(SoundCapture& soundCapture) : capture(soundCapture) {}

RecordingTake::~RecordingTake()
{
    const Hourglass hourglass;
    capture.Release();
    std::error_code error;
    for (const std::filesystem::path& file : {leftFile, rightFile})
        if (filesAreOurs)
            std::filesystem::remove(file, error);
}

bool RecordingTake::Start()
{
    const std::filesystem::path left = NewTempFileName("WavL");
    const std::filesystem::path right = NewTempFileName("WavR");
    if (!capture.Start(left, right))
        return false;
    leftFile = left;
    rightFile = right;
    return true;
}

void RecordingTake::Stop()
{
    capture.Stop();
    filesAreOurs = !leftFile.empty();
}

void RecordingTake::Load()
{
    LoadRecordedFiles(leftFile, rightFile);
    filesAreOurs = false;
}

} // namespace sprout
