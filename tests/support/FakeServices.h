// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/Picture.h"
#include "core/Shared.h"
#include "service/Desktop.h"
#include "service/Machine.h"
#include "service/Messages.h"
#include "service/PictureFiles.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "service/Stretch.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixFolderCopies.h"
#include "support/FakeCapture.h"
#include "support/FakeMail.h"
#include "support/FakeSound.h"
#include "support/FakeSoundReader.h"
#include "support/FakeWma.h"
#include "support/KnownTexts.h"
#include "support/TestFolder.h"

namespace sprout {

/// Keeps every message instead of showing it.
class FakeMessages : public Messages {
public:
    struct Shown {
        std::string title;
        std::string text;
        MessageIcon icon = MessageIcon::None;
        friend bool operator==(const Shown&, const Shown&) = default;
    };

    void MessageBox(const Words& title, const Words& text, MessageIcon icon) override
    {
        shown.push_back({ShownEnglish(title), ShownEnglish(text), icon});
    }

    std::vector<Shown> shown;
};

/// Counts what is shown.
class FakeScreen : public Screen {
public:
    void ShowHourglass() override { ++hourglasses, ++hourglassesShown; }
    void RestorePointer() override { --hourglasses; }
    void ShowProcessPic() override { ++processPics, ++processPicsShown; }
    void HideProcessPic() override { --processPics; }
    void ShowProgress(std::size_t done, std::size_t total) override
    {
        lastProgress = {done, total};
        if (progressesBeforeStop-- == 0)
            throw WorkStopped();
    }
    void EnableTuneNotFilledTimer() override { tuneNotFilledTimer = true; }
    void BeginStoppable(const Words& what) override { stages.push_back(ShownEnglish(what)); }
    void NextStage(const Words& what) override { stages.push_back(ShownEnglish(what)); }
    void EndStoppable() override { stages.emplace_back(); }

    int hourglasses = 0; // shown now
    int hourglassesShown = 0;
    int processPics = 0;
    int processPicsShown = 0;
    std::pair<std::size_t, std::size_t> lastProgress;
    bool tuneNotFilledTimer = false;
    std::vector<std::string> stages; ///< of stoppable work, empty at its end
    int progressesBeforeStop = -1;   ///< below 0: nobody stops the work
};

class FakeMachine : public Machine {
public:
    [[nodiscard]] MemoryStatus GlobalMemoryStatus() const override { return memory; }
    [[nodiscard]] std::filesystem::path TempPath() const override { return temp; }
    [[nodiscard]] std::filesystem::path CommonTempPath() const override { return commonTemp; }
    [[nodiscard]] std::filesystem::path ConfigFolder() const override { return config; }
    [[nodiscard]] std::filesystem::path ExecutablePath() const override { return executable; }
    [[nodiscard]] std::uint64_t FreeBytes(const std::filesystem::path&) const override { return freeBytes; }

    MemoryStatus memory;
    std::filesystem::path temp;
    std::filesystem::path commonTemp;
    std::filesystem::path config;
    std::filesystem::path executable;
    std::uint64_t freeBytes = 0;
};

class FakeDesktop : public Desktop {
public:
    [[nodiscard]] std::filesystem::path DocumentsFolder() const override { return documents; }
    [[nodiscard]] std::filesystem::path ConfigFolder() const override { return config; }
    void OpenWithShell(std::string_view target) override { opened.emplace_back(target); }
    [[nodiscard]] std::vector<std::string> OpenSoundControl(SoundControl control) override
    {
        soundControls.push_back(control);
        return missingControls;
    }

    std::filesystem::path documents;
    std::filesystem::path config;
    std::vector<std::string> opened;
    std::vector<SoundControl> soundControls;
    std::vector<std::string> missingControls; ///< names of programs that were searched for and not found
};

/// Reads each picture file as one colour: the number of bytes in the file. A file that begins with "bad" is not a
/// picture.
class FakePictureFiles : public PictureFiles {
public:
    [[nodiscard]] Picture LoadPicture(const std::filesystem::path& path) const override;
    [[nodiscard]] std::vector<std::byte> EncodeBmp(const Picture& picture) const override;
    void SavePicture(const Picture& picture, const std::filesystem::path& path) const override;
};

/// A stretch with predictable results: the length is multiplied by the duration factor, and each sample is the input's
/// at the same relative place. Counts its calls.
class FakeStretch : public Stretch {
public:
    [[nodiscard]] std::vector<std::int16_t> Change(std::span<const std::int16_t> samples, std::int32_t rate,
                                                   float pitchFactor, float durationFactor) const override;

    struct Call {
        float pitchFactor;
        float durationFactor;
        std::int32_t rate;
        std::size_t count;
    };
    [[nodiscard]] std::vector<Call> Calls() const;
    bool fails = false;
    bool lacksMemory = false; // throws

private:
    mutable std::mutex mutex;
    mutable std::vector<Call> calls;
};

/// Gives each test fresh services, a fresh shared state and its own folders.
class FakeServices {
public:
    FakeServices();
    FakeServices(const FakeServices&) = delete;
    FakeServices& operator=(const FakeServices&) = delete;
    ~FakeServices();

    TestFolder folder;
    FakeMessages messages;
    FakeScreen screen;
    PosixFiles files;
    PosixFolderCopies folderCopies;
    FakeMachine machine;
    FakeDesktop desktop;
    FakePictureFiles pictures;
    FakeStretch stretch;
    FakeSoundOutput sound;
    FakePlayDisplay playDisplay;
    FakeWmaEncoder wma;
    FakeMail mail;
    FakePrivateFolders privateFolders;
    FakeSoundReader soundReader;
    FakeCapture capture;
};

} // namespace sprout
