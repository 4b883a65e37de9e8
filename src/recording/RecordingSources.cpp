// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/RecordingSources.h"

#include <QLabel>

#include "recording/SourceList.h"
#include "recording/rules/Volume.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/SliderPointer.h"
#include "ui/words/Texts.h"

namespace sprout {

RecordingSources::RecordingSources(SoundCapture& soundCapture, SourceList& list, SliderPointer& pointer,
                                   QLabel& percentLbl, QObject* parent)
    : QObject(parent), capture(soundCapture), MixerRecSrcCmb(list), VolumePrtImg(pointer), VolumeLbl(percentLbl)
{
    connect(&MixerRecSrcCmb, &SourceList::SourceChosen, this, &RecordingSources::Choose);
}

void RecordingSources::LoadMixerSources()
{
    sourceChanges = capture.SourceChanges(); // before the list, to miss no change after it
    const SourceLines sources = LinesOfSources(capture.ListSources());
    const bool isThere = !sources.Lines.empty();
    selectedSource = sources.SourceIndex;
    MixerRecSrcCmb.ShowLines(sources);
    VolumePrtImg.setEnabled(isThere);
    if (isThere)
        ShowRecordVolume(sources.Volume);
}

void RecordingSources::FollowSources()
{
    // Refilling the list during a drag would pull the pointer out of the user's hand.
    if (capture.SourceChanges() != sourceChanges && !VolumePrtImg.IsDragged())
        LoadMixerSources();
}

void RecordingSources::Choose(std::int32_t source)
{
    Guarded([this, source] {
        capture.SelectSource(source);
        LoadMixerSources();
    });
}

void RecordingSources::ShowRecordVolume(std::int32_t value)
{
    const std::int32_t percent = VolumePercent(value);
    VolumePrtImg.ShowPercent(percent);
    ShowPercent(percent);
}

void RecordingSources::ShowPercent(std::int32_t percent)
{
    SetText(VolumeLbl, Words::Text("%1%", percent));
}

void RecordingSources::TakePercent(std::int32_t percent)
{
    Guarded([this, percent] {
        capture.SetVolume(selectedSource, VolumeOfPercent(percent));
        LoadMixerSources();
    });
}

} // namespace sprout
