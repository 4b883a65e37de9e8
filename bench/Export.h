// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

namespace sprout {

/// The mix of the full song to a file and to a WMA file, in the folder of `SPROUT_BENCH_SONG`.
void WavExport(benchmark::State& state);
void WmaExport(benchmark::State& state);

/// Writes the mix that those two export, for their peers.
int WriteMix(const std::filesystem::path& file);

/// Writes a WAV file of 44,100 Hz, 16 bits, stereo as the WMA file that an export makes.
int EncodeWavFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Prints the bytes that an export needs at its peak above the mix; of a WMA file those above the libraries too.
int PrintWavMemory(const std::filesystem::path& file);
int PrintWmaMemory(const std::filesystem::path& file);

} // namespace sprout
