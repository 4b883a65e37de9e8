// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TempoBar.h"

#include <QFontMetrics>

#include "core/Shared.h"
#include "core/SongModel.h"
#include "core/SongTime.h"
#include "main_window/TempoSlot.h"
#include "main_window/rules/MainWindowHints.h"
#include "main_window/rules/TempoBarPlaces.h"
#include "main_window/rules/TempoSlider.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Look.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/PutAt.h"
#include "ui/widgets/SliderPointer.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr QSize kTempoPointerSize{kTempoPointerWidth, kTempoBarHeight};
constexpr QSize kPointerPicture{30, 35}; // inside the focus frame

/// Width of a label whose longest text is `text`.
int WidestWidth(const char* text)
{
    return QFontMetrics(LabelFont()).horizontalAdvance(QString::fromLatin1(text)) + 2;
}

} // namespace

TempoBar::TempoBar(QWidget* parent, HintWatcher& watcher)
    : QWidget(parent),
      TempoSliderImg(new TempoSlot(this)),
      TempoPrtImg(nullptr),
      TempoLbl(new QLabel(this)),
      SngDurLbl(new QLabel(this))
{
    TempoSliderImg->move(0, (kTempoBarHeight - TempoSliderImg->height()) / 2);
    TempoPrtImg = new SliderPointer(
        this, {"pictures/TempoPrtImg", kTempoPointerSize, kPointerPicture, kLowestTempoPercent, kHighestTempoPercent},
        [this](std::int32_t percent) { ShowLabels(percent, TempoOfPercent(percent)); },
        [this](std::int32_t percent) { TakePercent(percent); });
    connect(TempoSliderImg, &TempoSlot::Pressed, TempoPrtImg, &SliderPointer::ChooseAt);
    SetSpokenName(*TempoPrtImg, Words::Text("Tempo"));
    SngDurLbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    FitRoom({QWIDGETSIZE_MAX, kTempoBarHeight});
    watcher.Watch(*this, {});
    const auto name = [&watcher](QWidget& control, const char* systemName) {
        control.setObjectName(QString::fromLatin1(systemName));
        watcher.Watch(control, MainWindowHint(systemName));
    };
    name(*TempoSliderImg, "TempoSliderImg");
    name(*TempoPrtImg, "TempoPrtImg");
    name(*TempoLbl, "TempoLbl");
    name(*SngDurLbl, "SngDurLbl");
    UpdateTempoSliderValue();
}

void TempoBar::FitRoom(QSize room)
{
    const TempoBarPlaces places =
        PlaceTempoBar(room.width(), room.height(), WidestWidth("200%"), WidestWidth("480 sec"));
    for (QLabel* label : {TempoLbl, SngDurLbl})
        label->setFont(places.hasLabelsBelow ? HintFont() : LabelFont());
    TempoLbl->setAlignment((places.hasLabelsBelow ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    TempoSliderImg->resize(places.slotWidth, kTempoSlotHeight);
    TempoPrtImg->SetSlot(0, places.slotWidth);
    PutAt(*TempoLbl, places.percent);
    PutAt(*SngDurLbl, places.seconds);
    setFixedSize(places.width, places.height);
}

void TempoBar::UpdateTempoSliderValue()
{
    const std::int32_t tempo = Shared().Song.Tempo;
    const std::int32_t percent = TempoPercent(tempo);
    TempoPrtImg->ShowPercent(percent);
    ShowLabels(percent, tempo);
}

void TempoBar::ShowLabels(std::int32_t percent, std::int32_t tempo)
{
    SetText(*TempoLbl, TempoLabel(percent));
    SetText(*SngDurLbl, DurationLabel(tempo));
}

void TempoBar::TakePercent(std::int32_t percent)
{
    Guarded([this, percent] {
        const bool changed = SetTempoPercent(percent);
        UpdateTempoSliderValue();
        if (changed)
            Q_EMIT TempoChanged();
    });
}

} // namespace sprout
