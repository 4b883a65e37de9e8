// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "service/SoundCapture.h"

namespace sprout {

/// The two files of one recording, from the start of the capture until they are loaded into the arrays of `Recd`. Its
/// destructor releases the microphone and deletes files that were not loaded: a voice must not stay behind.
class RecordingTake {
public:
    explicit RecordingTake(SoundCapture& capture);
    RecordingTake(const RecordingTake&) = delete;
    RecordingTake& operator=(const RecordingTake&) = delete;
    ~RecordingTake();

    /// Starts to record into new files. Returns false if the capture cannot.
    [[nodiscard]] bool Start();
    /// Ends the recording; from then on the files are this object's.
    void Stop();
    /// Loads the files and deletes them. Throws as `LoadRecordedFiles` does.
    void Load();

private:
    SoundCapture& capture;
    std::filesystem::path leftFile; ///< empty if nothing was started
    std::filesystem::path rightFile;
    bool filesAreOurs = false; ///< the capture has handed them over, but they are not loaded yet
};

} // namespace sprout
