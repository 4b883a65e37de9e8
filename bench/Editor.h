// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

namespace sprout {

/// The audio editor's edits of 240 s of stereo: all of it made louder, at the first time and later, and a second cut
/// off at its front.
void Louder(benchmark::State& state);
void LouderAtFirst(benchmark::State& state);
void CutFront(benchmark::State& state);

/// Their peers: a copy of all bytes in memory that was used before, and one of them or of what is left into new memory.
void CopyBytes(benchmark::State& state);
void CopyBytesAnew(benchmark::State& state);
void CopyTail(benchmark::State& state);

} // namespace sprout
