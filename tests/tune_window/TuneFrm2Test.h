// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tune_window/TuneWindowTest.h"
#include "tunes/TuneNames.h"
#include "tunes/TuneTable.h"

namespace sprout {

/// The tune window with the tunes of the test's own folder.
class TuneFrm2Test : public TuneWindowTest {
protected:
    static std::vector<std::string> TableNames()
    {
        std::vector<std::string> names;
        for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i)
            names.push_back(At(Shared().TuneTable, i).Name);
        return names;
    }

    static std::filesystem::path File(const char* name) { return Shared().UserTunes / name; }
};

} // namespace sprout
