// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TempoBar.h"

#include <QAbstractSlider>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "core/Numbers.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "main_window/rules/TempoSlider.h"
#include "ui/Artwork.h"
#include "ui/Guarded.h"
#include "ui/Hints.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

// At these widths one percent is one pixel.
constexpr QSize kTempoSlotSize{184, 28};
constexpr QSize kTempoPointerSize{34, 40};
constexpr QSize kPointerPicture{30, 35}; // inside the frame of the focus
constexpr int kTempoBarHeight = 40;
constexpr int kLabelGap = 8;
constexpr int kLabelBelowHeight = 16;
constexpr int kHeightWithLabelsBelow = 53; // the labels lie over the frame of the pointer's focus, not over its picture
constexpr int kStemEnd = 4;                // sticks out behind the outer knots
constexpr std::int32_t kLowestPercent = 50;
constexpr std::int32_t kHighestPercent = 200;
constexpr std::int32_t kUsualPercent = 100;
constexpr std::int32_t kPercentsAPage = 10;

constexpr int kShortestSlot = 60;
constexpr double kKnot = 7; // half its height
constexpr double kUsualKnot = 10;

/// Width of a label that holds `text` at most.
int WidestWidth(const char* text)
{
    return QFontMetrics(LabelFont()).horizontalAdvance(QString::fromLatin1(text)) + 2;
}

/// The slot: a stem with a knot under the pointer's middle at each half of the reference tempo.
class TempoSlot : public QWidget {
public:
    explicit TempoSlot(QWidget* parent) : QWidget(parent) { resize(kTempoSlotSize); }

protected:
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
        const TempoSlider slider{0, static_cast<double>(width()), kTempoPointerSize.width()};
        return slider.LeftOf(percent) + kTempoPointerSize.width() / 2.0;
    }
};

} // namespace

/// The pointer, which stands for the whole slider: it is dragged, takes the keys and tells its value to screen readers.
class TempoPointer : public QAbstractSlider {
public:
    using Told = std::function<void(std::int32_t percent)>;

    /// onSlide: told each value of a drag; onChoose: told the value that a drag, a key or a screen reader left.
    TempoPointer(QWidget* parent, Told onSlide, Told onChoose)
        : QAbstractSlider(parent), slide(std::move(onSlide)), choose(std::move(onChoose))
    {
        resize(kTempoPointerSize);
        setOrientation(Qt::Horizontal);
        setRange(kLowestPercent, kHighestPercent);
        setPageStep(kPercentsAPage);
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::SizeHorCursor);
        connect(this, &QAbstractSlider::valueChanged, this, &TempoPointer::TakeValue);
    }

    void ShowPercent(std::int32_t percent)
    {
        shown = percent;
        setValue(percent);
        PutAt(slider.LeftOf(percent));
    }

    void SetSlotWidth(int widthPx)
    {
        slider.slotWidth = widthPx;
        PutAt(slider.LeftOf(value()));
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton)
            return;
        TempoDragging = true;
        TempoDownX = RoundHalfEven(event->position().x());
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!TempoDragging)
            return;
        PutAt(slider.Dragged(left, event->position().x(), TempoDownX));
        const std::int32_t percent = slider.PercentAt(left);
        setValue(percent);
        // Also where the value stays: a song's tempo beyond the slider has its own duration, which the drag ends.
        slide(percent);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton)
            EndDrag();
    }

    /// A wheel turned in passing changes nothing.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

    void focusInEvent(QFocusEvent* event) override
    {
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
            ShowHint(property(kHintProperty).toString());
        QAbstractSlider::focusInEvent(event);
    }

    /// A window that opens during a drag gets the release in place of the pointer.
    void focusOutEvent(QFocusEvent* event) override
    {
        EndDrag();
        QAbstractSlider::focusOutEvent(event);
    }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QPoint inside((width() - kPointerPicture.width()) / 2, (height() - kPointerPicture.height()) / 2);
        painter.drawPixmap(inside,
                           Artwork(QStringLiteral("pictures/TempoPrtImg"), kPointerPicture, devicePixelRatioF()));
        if (hasFocus())
            PaintFocus(painter);
    }

private:
    void PaintFocus(QPainter& painter) const
    {
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF edge = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
        // Light beside dark, so that one of them stands out on every ground.
        for (const QPen& pen : {QPen(Qt::white, 3), QPen(kLink, 2)}) {
            painter.setPen(pen);
            painter.drawRoundedRect(edge, 8, 8);
        }
    }

    /// What a key or a screen reader sets; a drag tells of itself.
    void TakeValue(int percent)
    {
        if (!TempoDragging && percent != shown)
            choose(percent);
    }

    void EndDrag()
    {
        if (!TempoDragging)
            return;
        TempoDragging = false;
        choose(slider.PercentAt(left));
    }

    void PutAt(double newLeft)
    {
        left = newLeft;
        move(static_cast<int>(std::lround(left)), y());
    }

    TempoSlider slider{0, kTempoSlotSize.width(), kTempoPointerSize.width()};
    Told slide;
    Told choose;
    bool TempoDragging = false;
    std::int32_t TempoDownX = 0;
    double left = 0; // unrounded
    std::int32_t shown = 0;
};

TempoBar::TempoBar(QWidget* parent, HintWatcher& watcher)
    : QWidget(parent),
      TempoSliderImg(new TempoSlot(this)),
      TempoPrtImg(nullptr),
      TempoLbl(new QLabel(this)),
      SngDurLbl(new QLabel(this))
{
    TempoSliderImg->move(0, (kTempoBarHeight - TempoSliderImg->height()) / 2);
    TempoPrtImg = new TempoPointer(
        this, [this](std::int32_t percent) { ShowLabels(percent, TempoOfPercent(percent)); },
        [this](std::int32_t percent) { TakePercent(percent); });
    TempoPrtImg->setAccessibleName(QStringLiteral("Tempo"));
    SngDurLbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    FitRoom({QWIDGETSIZE_MAX, kTempoBarHeight});
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
    // The labels stand under the ends of the stem.
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
    TempoPrtImg->SetSlotWidth(widthPx);
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
