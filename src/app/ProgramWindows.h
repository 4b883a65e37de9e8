// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Windows.h"

namespace sprout {

class EmailSong;

/// The program's windows.
class ProgramWindows : public Windows {
public:
    ProgramWindows();
    ~ProgramWindows() override;

    [[nodiscard]] bool OpenTuneWindow(Tune& tune, bool& newFlag) override;
    void UpdateThisTune() override;
    [[nodiscard]] bool ChooseBeat(std::string& name) override;
    [[nodiscard]] std::optional<WaveData> RecordSound() override;
    [[nodiscard]] bool EditTrack(std::int32_t track) override;
    void UpdatePlayPointer() override;
    [[nodiscard]] std::optional<std::string> ChooseSongToOpen(QWidget& owner) override;
    [[nodiscard]] std::optional<std::string> ChooseNameToSave(QWidget& owner, std::string_view name) override;
    [[nodiscard]] bool SaveSongAsSound(SoundFileKind kind) override;
    [[nodiscard]] std::vector<std::string> DemoNames() override;
    void ShowDemo(QWidget& owner, std::string_view name) override;
    void ShowHelp() override;
    void EmailSong() override;
    void StopEmailSong() override;

private:
    std::unique_ptr<sprout::EmailSong> emailSong; ///< created for the first mail
};

} // namespace sprout
