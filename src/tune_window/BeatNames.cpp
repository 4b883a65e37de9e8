// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/BeatNames.h"

#include "beats/BeatFiles.h"

namespace sprout {

const std::string& BeatNames::NameForPeople(const std::string& beat)
{
    const auto [found, isNew] = names.try_emplace(beat);
    if (isNew)
        found->second = BeatNameForPeople(beat);
    return found->second;
}

} // namespace sprout
