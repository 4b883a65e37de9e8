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
#include "ui/words/FittingFont.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr QSize kTempoPointerSize{kTempoPointerWidth, kTempoBarHeight};
constexpr QSize kPointerPicture{30, 35}; // inside the focus frame

/// Width of a label whose longest text is `text`.
int WidestWidth(const Words& text)
{
    return QFontMetrics(LabelFont()).horizontalAdvance(QtText(text)) + 2;
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
        PlaceTempoBar(room.width(), room.height(), WidestWidth(TempoLabel(kHighestTempoPercent)),
                      WidestWidth(DurationLabel(TempoOfPercent(kLowestTempoPercent))));
    labelFont = places.hasLabelsBelow ? HintFont() : LabelFont();
    TempoLbl->setAlignment((places.hasLabelsBelow ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    TempoSliderImg->resize(places.slotWidth, kTempoSlotHeight);
    TempoPrtImg->SetSlot(0, places.slotWidth);
    PutAt(*TempoLbl, places.percent);
    PutAt(*SngDurLbl, places.seconds);
    FitLabels();
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
    FitLabels();
}

void TempoBar::FitLabels() const
{
    for (QLabel* label : {TempoLbl, SngDurLbl})
        label->setFont(FittingFont(labelFont, label->text(), label->width()));
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
