// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "ui/BandedForm.h"

namespace sprout {

enum class SongSelMode { Open = 1, Save = 2, New = 3 };

/// The song window: lists the songs of `UserSongs`; opens, saves or names one. It loads and saves nothing itself.
class SongSelFrm : public BandedForm {
    Q_OBJECT

public:
    explicit SongSelFrm(QWidget* parent);

    void InitilizeThisWindow(SongSelMode mode);

    /// The name in the box at first.
    void SetSongName(std::string_view name);

    /// After the window has closed: left with OK, and the song's name.
    bool Ok = false;
    std::string ChosenName;
};

} // namespace sprout
