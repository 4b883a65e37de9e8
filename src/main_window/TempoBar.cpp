// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TempoBar.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <functional>
#include <utility>

#include "core/Shared.h"
#include "core/SongModel.h"
#include "core/SongTime.h"
#include "main_window/rules/TempoSlider.h"
#include "ui/Guarded.h"
#include "ui/Hints.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/QtText.h"
#include "ui/SliderPointer.h"

namespace sprout {

namespace {

// At these widths one percent is one pixel.
constexpr QSize kTempoSlotSize{184, 28};
constexpr QSize kTempoPointerSize{34, 40};
constexpr QSize kPointerPicture{30, 35}; // inside the focus frame
constexpr int kTempoBarHeight = 40;
constexpr int kLabelGap = 8;
constexpr int kLabelBelowHeight = 16;
constexpr int kHeightWithLabelsBelow = 53; // the labels cover the pointer's focus frame, but not its picture
constexpr int kStemEnd = 4;                // sticks out beyond the outer knots
constexpr std::int32_t kLowestPercent = 50;
constexpr std::int32_t kHighestPercent = 200;
constexpr std::int32_t kUsualPercent = 100;

constexpr int kShortestSlot = 60;
constexpr double kKnot = 7; // half its height
constexpr double kUsualKnot = 10;

/// Width of a label whose longest text is `text`.
int WidestWidth(const char* text)
{
    return QFontMetrics(LabelFont()).horizontalAdvance(QString::fromLatin1(text)) + 2;
}

/// The slot: a stem with a knot under the pointer's middle at every half of the reference tempo.
class TempoSlot : public QWidget {
public:
    TempoSlot(QWidget* parent, std::function<void(double x)> onPress) : QWidget(parent), press(std::move(onPress))
    {
        resize(kTempoSlotSize);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton)
            press(x() + event->position().x());
    }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double middle = height() / 2.0;
        const QLineF stem(MiddleOf(kLowestPercent), middle, MiddleOf(kHighestPercent), middle);
        for (const QPen& pen : {QPen(kBark, 2 * kStemEnd), QPen(kLeaf, kStemEnd)}) {
            painter.setPen(QPen(pen.brush(), pen.widthF(), Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(stem);
        }
        painter.setPen(QPen(kBark, 2, Qt::SolidLine, Qt::RoundCap));
        for (std::int32_t percent = kLowestPercent; percent <= kHighestPercent; percent += kLowestPercent) {
            const double half = percent == kUsualPercent ? kUsualKnot : kKnot;
            painter.drawLine(QLineF(MiddleOf(percent), middle - half, MiddleOf(percent), middle + half));
        }
    }

private:
    [[nodiscard]] double MiddleOf(std::int32_t percent) const
    {
        const Slider slider{0, static_cast<double>(width()), static_cast<double>(kTempoPointerSize.width()),
                            kLowestPercent, kHighestPercent};
        return slider.LeftOf(percent) + kTempoPointerSize.width() / 2.0;
    }

    std::function<void(double x)> press;
};

} // namespace

TempoBar::TempoBar(QWidget* parent, HintWatcher& watcher)
    : QWidget(parent),
      TempoSliderImg(new TempoSlot(this, [this](double x) { TempoPrtImg->ChooseAt(x); })),
      TempoPrtImg(nullptr),
      TempoLbl(new QLabel(this)),
      SngDurLbl(new QLabel(this))
{
    TempoSliderImg->move(0, (kTempoBarHeight - TempoSliderImg->height()) / 2);
    TempoPrtImg = new SliderPointer(
        this, {"pictures/TempoPrtImg", kTempoPointerSize, kPointerPicture, kLowestPercent, kHighestPercent},
        [this](std::int32_t percent) { ShowLabels(percent, TempoOfPercent(percent)); },
        [this](std::int32_t percent) { TakePercent(percent); });
    TempoPrtImg->setAccessibleName(QStringLiteral("Tempo"));
    SngDurLbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    FitRoom({QWIDGETSIZE_MAX, kTempoBarHeight});
    watcher.Watch(*this, "");
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
    const int percentWidth = WidestWidth("200%");
    const int secondsWidth = WidestWidth("480 sec");
    const bool hasSmallLabels = room.height() >= kHeightWithLabelsBelow;
    const int lineWidth = kTempoSlotSize.width() + kLabelGap + percentWidth + kLabelGap + secondsWidth;
    for (QLabel* label : {TempoLbl, SngDurLbl})
        label->setFont(hasSmallLabels ? HintFont() : LabelFont());
    TempoLbl->setAlignment((hasSmallLabels ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    if (hasSmallLabels)
        PlaceLabelsBelow(room.width());
    else if (room.width() >= lineWidth)
        PlaceInLine(percentWidth, secondsWidth);
    else
        PlaceLabelsStacked(room.width(), secondsWidth);
}

void TempoBar::PlaceInLine(int percentWidth, int secondsWidth)
{
    SetSlotWidth(kTempoSlotSize.width());
    const int percentLeft = kTempoSlotSize.width() + kLabelGap;
    const int secondsLeft = percentLeft + percentWidth + kLabelGap;
    TempoLbl->setGeometry(percentLeft, 0, percentWidth, kTempoBarHeight);
    SngDurLbl->setGeometry(secondsLeft, 0, secondsWidth, kTempoBarHeight);
    setFixedSize(secondsLeft + secondsWidth, kTempoBarHeight);
}

void TempoBar::PlaceLabelsBelow(int widthPx)
{
    const int slotWidth = std::min(widthPx, kTempoSlotSize.width());
    SetSlotWidth(slotWidth);
    // The labels are under the ends of the stem.
    const int left = kTempoPointerSize.width() / 2 - kStemEnd;
    const int labelsWidth = slotWidth - 2 * left;
    const int top = kHeightWithLabelsBelow - kLabelBelowHeight;
    TempoLbl->setGeometry(left, top, labelsWidth / 2, kLabelBelowHeight);
    SngDurLbl->setGeometry(left + labelsWidth / 2, top, labelsWidth - labelsWidth / 2, kLabelBelowHeight);
    setFixedSize(slotWidth, kHeightWithLabelsBelow);
}

void TempoBar::PlaceLabelsStacked(int widthPx, int secondsWidth)
{
    const int slotWidth = std::clamp(widthPx - kLabelGap - secondsWidth, kShortestSlot, kTempoSlotSize.width());
    SetSlotWidth(slotWidth);
    const int left = slotWidth + kLabelGap;
    TempoLbl->setGeometry(left, 0, secondsWidth, kTempoBarHeight / 2);
    SngDurLbl->setGeometry(left, kTempoBarHeight / 2, secondsWidth, kTempoBarHeight / 2);
    setFixedSize(left + secondsWidth, kTempoBarHeight);
}

void TempoBar::SetSlotWidth(int widthPx)
{
    TempoSliderImg->resize(widthPx, kTempoSlotSize.height());
    TempoPrtImg->SetSlot(0, widthPx);
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
    TempoLbl->setText(QtText(TempoLabel(percent)));
    SngDurLbl->setText(QtText(DurationLabel(tempo)));
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
