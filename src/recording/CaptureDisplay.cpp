// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/CaptureDisplay.h"

#include <QLabel>

#include "ui/forms/BandedForm.h"
#include "ui/look/Look.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr QRect kDurationPlace{160, 18, 306, 56}; // positions count from the band's lower edge
constexpr QRect kStatusPlace{160, 80, 306, 52};
constexpr QRect kLeftMeterPlace{476, 12, 48, 128};
constexpr QRect kRightMeterPlace{536, 12, 48, 128};
constexpr QRect kProgressPlace{16, 154, 568, 18};
constexpr int kDurationPixels = 36;

constexpr LaterWords kMeterHint = Words::Later("This should show moving up-down when you sing");

/// Adds a picture to the window.
template <class Kind>
Kind* AddPicture(QWidget& window, const char* name, const Words& spokenName, const QRect& place)
{
    auto* made = new Kind(&window);
    made->setObjectName(QString::fromLatin1(name));
    SetSpokenName(*made, spokenName);
    made->setGeometry(place.translated(0, kBandHeight));
    SetSpokenRole(*made, QAccessible::Graphic);
    return made;
}

} // namespace

CaptureDisplay::CaptureDisplay(QWidget& window, QLabel& duration, QLabel& status, HintWatcher& watcher)
    : Dur_Lbl(duration),
      Rec_Stat_Lbl(status),
      RecShowLPic(
          AddPicture<LevelMeterPic>(window, "RecShowLPic", Words::Text("Loudness on the left"), kLeftMeterPlace)),
      RecShowRPic(
          AddPicture<LevelMeterPic>(window, "RecShowRPic", Words::Text("Loudness on the right"), kRightMeterPlace)),
      RecProgressPic(AddPicture<RecordingProgressPic>(window, "RecProgressPic", Words::Text("How much is recorded"),
                                                      kProgressPlace))
{
    QFont large = TitleFont();
    large.setPixelSize(kDurationPixels);
    Dur_Lbl.setFont(large);
    Dur_Lbl.setGeometry(kDurationPlace.translated(0, kBandHeight));
    Rec_Stat_Lbl.setWordWrap(true);
    Rec_Stat_Lbl.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Rec_Stat_Lbl.setGeometry(kStatusPlace.translated(0, kBandHeight));
    watcher.Watch(Dur_Lbl, Words::Text("Shows the recorded duration"));
    watcher.Watch(Rec_Stat_Lbl, Words::Text("Recording status"));
    watcher.Watch(*RecShowLPic, kMeterHint);
    watcher.Watch(*RecShowRPic, kMeterHint);
    watcher.Watch(*RecProgressPic, {});
}

void CaptureDisplay::Measure(std::int32_t bits)
{
    RecShowLPic->MeasureMeter(PeakMaximum(bits));
    RecShowRPic->MeasureMeter(PeakMaximum(bits));
}

void CaptureDisplay::Clear()
{
    RecShowLPic->Clear();
    RecShowRPic->Clear();
}

void CaptureDisplay::Show(const CaptureView& view)
{
    SetText(Dur_Lbl, Words::AsIs(view.Duration()));
    SetText(Rec_Stat_Lbl, view.Status());
    RecShowLPic->ShowLevel(view.Left(), view.BarColour());
    RecShowRPic->ShowLevel(view.Right(), view.BarColour());
    RecProgressPic->ShowSeconds(view.Elapsed());
}

} // namespace sprout
