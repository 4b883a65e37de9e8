// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "main_window/CanvasFixture.h"
#include "ui/ModalSteps.h"

namespace sprout {

/// A canvas with a music track and an audio track, and the names of the buttons that float.
class TitleStripFixture : public CanvasFixture {
protected:
    TitleStripFixture() { TrackOf(2).TrackType = 1; }

    std::vector<std::string> Floating() const
    {
        std::vector<std::string> names;
        for (const char* name : {"TrackTuneBtn", "TrackAudioBtn", "TrackDeleteBtn", "TrackPlayBtn"})
            if (IsShown(name))
                names.emplace_back(name);
        return names;
    }
};

} // namespace sprout
