// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Work that is done beside the interface, ahead of a play. Everything here is called on the interface thread and
/// returns at once.
class AheadWork {
public:
    AheadWork() = default;
    AheadWork(const AheadWork&) = delete;
    AheadWork& operator=(const AheadWork&) = delete;
    virtual ~AheadWork() = default;

    /// Looks at the shared song: drops what it no longer needs and begins what is missing.
    virtual void Begin() = 0;

    /// From now until the next `Begin` the song's mix is made too, once its steps are there.
    virtual void AllowMix() = 0;

    /// Takes what threads have finished.
    virtual void TakeResults() = 0;

    /// Ends the work.
    virtual void Interrupt() = 0;

    /// Whether work was left undone by an interruption, also one from elsewhere, and `Begin` would take it up.
    [[nodiscard]] virtual bool WasInterrupted() const = 0;
};

} // namespace sprout
