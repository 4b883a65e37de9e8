// SPDX-License-Identifier: GPL-3.0-or-later
// play_wave FILE.wav: plays the file for each line on standard input and reports on standard output: "begun" or
// "failed", then "ended". Ends at the end of its input.
#include <chrono>
#include <iostream>
#include <string>
#include <thread>

#include "app/sound/MachineSound.h"
#include "service/Messages.h"
#include "service/PlayDisplay.h"
#include "service/Services.h"
#include "service/posix/PosixFiles.h"
#include "sound/PlayMod.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

class PrintedMessages : public Messages {
public:
    void MessageBox(const Words& title, const Words& text, MessageIcon) override
    {
        std::cerr << title.English() << ": " << text.English() << std::endl;
    }
};

class NoDisplay : public PlayDisplay {
public:
    [[nodiscard]] std::int32_t MainWindowHandle() const override { return 1; }
    void ShowSoundStatus(const Words&) override {}
    void EnablePlayPosTimer() override {}
    void UpdateThisTune() override {}
};

void PlayToItsEnd(const WaveData& wave)
{
    PlayWaveStatus(wave, Words::Text("Playing"), Loop::No);
    const bool begun = PlayShared().PlayState == PlayState::Playing;
    std::cout << (begun ? "begun" : "failed") << std::endl;
    while (PlayShared().PlayState == PlayState::Playing) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5)); // as the window's timer does
        Player().UpdatePlayPosition();
    }
    if (begun)
        std::cout << "ended" << std::endl;
}

void Run(const char* file)
{
    const WaveData wave = LoadWaveFile(file);
    SetSoundDriver(true);
    for (std::string line; std::getline(std::cin, line);)
        PlayToItsEnd(wave);
    ReleasePlayer();
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    sprout::PrintedMessages messages;
    sprout::PosixFiles files;
    sprout::MachineSound sound;
    sprout::NoDisplay display;
    sprout::Services& services = sprout::TheServices();
    services.messages = &messages;
    services.files = &files;
    services.sound = &sound;
    services.playDisplay = &display;
    sprout::Run(argv[1]);
    return 0;
}
