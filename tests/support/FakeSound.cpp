// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FakeSound.h"

#include <memory>
#include <new>
#include <utility>

#include "base/Errors.h"

namespace sprout {

namespace {

class FakeSoundObject : public SoundObject {
public:
    explicit FakeSoundObject(FakeSoundOutput& output) : fake(output), number(++output.objects) { ++fake.open; }
    ~FakeSoundObject() override { --fake.open; }

    void Load(std::span<const std::byte> pcm) override
    {
        if (fake.memoryFails)
            throw std::bad_alloc();
        Note("Load", std::to_string(pcm.size()));
        fake.pcm.assign(pcm.begin(), pcm.end());
    }
    void Start(StartFrom from, Loop loop) override
    {
        CheckDriver();
        Note("Start", std::string(from == StartFrom::Beginning ? "Beginning" : "WhereItStopped") + Word(loop));
        fake.place.Playing = true;
    }
    void Stop() override
    {
        CheckDriver();
        Note("Stop", "");
        fake.place.Playing = false;
    }
    [[nodiscard]] SoundPlace Place() override
    {
        CheckDriver();
        return fake.place;
    }
    void SetLooping(Loop loop) override
    {
        CheckDriver();
        Note("SetLooping", Word(loop));
    }

    [[nodiscard]] int Number() const { return number; }

private:
    static std::string Word(Loop loop) { return loop == Loop::Yes ? " loop" : " once"; }

    void CheckDriver() const
    {
        if (fake.driverFails)
            throw RunTimeError(Words::AsIs("The driver is gone."));
    }
    void Note(std::string_view call, const std::string& words)
    {
        fake.calls.push_back(std::string(call) + " " + std::to_string(number) +
                             (words.empty() || words.front() == ' ' ? words : " " + words));
    }

    FakeSoundOutput& fake;
    int number;
};

} // namespace

SoundHandle FakeSoundOutput::Open(SoundHandle old, std::int32_t window, const SoundFormat& wanted, std::int32_t bytes)
{
    const auto* former = dynamic_cast<const FakeSoundObject*>(old.get());
    calls.push_back("Open " + std::to_string(former ? former->Number() : 0));
    windowHandle = window;
    format = wanted;
    bufferBytes = bytes;
    if (!opens)
        return nullptr;
    return std::make_unique<FakeSoundObject>(*this);
}

std::int32_t FakePlayDisplay::MainWindowHandle() const
{
    if (mainWindow < -1)
        throw RunTimeError(Words::AsIs("There is no window."));
    return mainWindow;
}

} // namespace sprout
