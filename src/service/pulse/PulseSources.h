// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "service/SoundCapture.h"
#include "service/pulse/PulseConnection.h"

namespace sprout {

/// A source as the server describes it.
struct PulseSource {
    std::string Name;        ///< used to open it
    std::string Description; ///< for display; may be blank
    std::uint32_t Index = 0;
    bool IsMonitor = false; ///< delivers what an output plays
    bool IsMuted = false;
    std::vector<std::uint32_t> Volumes; ///< of each channel; 65536 is 100 %
};

struct PulseSources {
    std::vector<PulseSource> Sources; ///< including monitors
    std::string Default;              ///< its name
    bool IsPipeWire = false;
};

/// Asks a connected server. Returns nothing if it does not answer in time. See `PulseConnection` for the lock.
[[nodiscard]] std::optional<PulseSources> AskForSources(PulseConnection& connection, PulseConnection::Lock& lock,
                                                        PulseConnection::Time deadline);

/// The sources without monitors, as many as fit into a list of 50 names and 3200 bytes, counting one extra byte per
/// name; `wanted` is among them if it exists at all.
[[nodiscard]] std::vector<PulseSource> ListedSources(const PulseSources& sources, const std::string& wanted);

/// The name of the source to record: the wanted one, else the default, else the first; blank if there are only
/// monitors.
[[nodiscard]] std::string SourceToRecord(const PulseSources& sources, const std::string& wanted);

/// The source as a window shows it, with its volume from 0 to 65535.
[[nodiscard]] SoundSource ShownSource(const PulseSource& source);

/// The source's volumes with the loudest at `volume`, 0 to 65535, and the others lower in the same proportion.
[[nodiscard]] std::vector<std::uint32_t> VolumesAt(const PulseSource& source, std::int32_t volume);

} // namespace sprout
