// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstdint>

#include "service/SoundCapture.h"

class QLabel;

namespace sprout {

class SliderPointer;
class SourceList;

/// Which microphone records and how loud: it fills the list, the volume's pointer and its percentage from the machine's
/// sources, and tells the capture what the user chooses.
class RecordingSources : public QObject {
    Q_OBJECT

public:
    /// The controls live as long as this object.
    RecordingSources(SoundCapture& capture, SourceList& list, SliderPointer& pointer, QLabel& percentLbl,
                     QObject* parent);

    /// Shows the machine's sources and the volume of the selected one.
    void LoadMixerSources();
    /// Shows them again if they have changed, but not while the user drags the pointer.
    void FollowSources();

    /// The user drags the pointer over a percentage, and leaves it there.
    void ShowPercent(std::int32_t percent);
    void TakePercent(std::int32_t percent);

private:
    void Choose(std::int32_t source);
    void ShowRecordVolume(std::int32_t value);

    SoundCapture& capture;
    SourceList& MixerRecSrcCmb;
    SliderPointer& VolumePrtImg;
    QLabel& VolumeLbl;
    std::int32_t selectedSource = -1;
    std::uint64_t sourceChanges = 0;
};

} // namespace sprout
