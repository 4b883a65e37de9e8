// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "service/pulse/PulseSoundOutput.h"
#include "service/pulse/TestSoundServer.h"
#include "support/Comes.h"

namespace sprout {

/// Samples without silent bytes, different enough that no frame can be taken for another.
[[nodiscard]] Bytes Samples(const SoundFormat& format, int frames, unsigned seed = 1);

/// The samples again and again, `bytes` of them.
[[nodiscard]] Bytes Repeated(const Bytes& samples, std::size_t bytes);

/// Whether two sounds are equal, and where they differ.
[[nodiscard]] ::testing::AssertionResult Same(const Bytes& one, const Bytes& other);

/// What was heard, without the silence, which the samples do not contain.
[[nodiscard]] Bytes WithoutSilence(Bytes bytes);

/// Returns true as soon as the sound has ended.
[[nodiscard]] bool Ends(const SoundHandle& sound);

/// An open, silent sound of `samples`.
[[nodiscard]] SoundHandle Opened(SoundOutput& output, const SoundFormat& format, const Bytes& samples,
                                 SoundHandle old = nullptr);

/// A server whose device has the program's own format and plays what it is given.
class PulseTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.Start()); }

    /// A playing sound of `samples`, part of which was already heard.
    [[nodiscard]] SoundHandle Playing(const Bytes& samples, Loop loop, TestRecording& recording);

    const SoundFormat format;
    TestSoundServer server{format};
    PulseSoundOutput output;
};

} // namespace sprout
