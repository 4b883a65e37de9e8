// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/AheadSteps.h"

#include <algorithm>
#include <exception>
#include <system_error>
#include <utility>

#include "sound/StepSound.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

/// A step that fails is left to the play, which shows or logs why.
WaveData SoundOf(const StepKey& key)
{
    try {
        return RenderKey(key);
    } catch (const std::exception&) {
        return EmptyWave();
    }
}

} // namespace

AheadSteps::AheadSteps(std::vector<StepKey> keys, std::size_t most, const AheadThreads& threads)
    : calls(threads), pieces(keys.size())
{
    for (std::size_t i = 0; i < keys.size(); ++i)
        pieces[i].key = std::move(keys[i]);
    const std::size_t count = std::min(most, pieces.size());
    workers.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        ++running;
        try {
            workers.emplace_back([this] { Work(); });
        } catch (const std::system_error&) {
            --running; // fewer threads do the same work
            break;
        }
    }
}

AheadSteps::~AheadSteps()
{
    GiveUp();
    for (std::thread& worker : workers)
        worker.join();
}

void AheadSteps::GiveUp()
{
    next.store(pieces.size());
}

std::vector<AheadSteps::Result> AheadSteps::TakeResults()
{
    std::vector<Result> results;
    for (Piece& piece : pieces) {
        if (piece.taken || !piece.done.load())
            continue;
        piece.taken = true;
        results.push_back({piece.key, std::exchange(piece.sound, {})});
    }
    return results;
}

void AheadSteps::Work()
{
    calls.begun();
    for (std::size_t i = next.fetch_add(1); i < pieces.size(); i = next.fetch_add(1)) {
        pieces[i].sound = SoundOf(pieces[i].key);
        pieces[i].done.store(true);
        calls.finished();
    }
    --running;
    calls.finished();
}

} // namespace sprout
