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
        for (const QPen& pen : {QPen(kBark, 9), QPen(kLeaf, 5)}) {
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
    for (QLabel* label : {TempoLbl, SngDurLbl}) {
        label->setFont(LabelFont());
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    FitWidth(QWIDGETSIZE_MAX);
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

void TempoBar::FitWidth(int widthPx)
{
    const int percentWidth = WidestWidth("200%");
    const int secondsWidth = WidestWidth("480 sec");
    const int besideTheSlot = kLabelGap + percentWidth + kLabelGap + secondsWidth;
    const bool stacked = widthPx < kTempoSlotSize.width() + besideTheSlot;
    const int slotWidth = stacked
                              ? std::clamp(widthPx - kLabelGap - secondsWidth, kShortestSlot, kTempoSlotSize.width())
                              : kTempoSlotSize.width();
    TempoSliderImg->resize(slotWidth, kTempoSlotSize.height());
    TempoPrtImg->SetSlotWidth(slotWidth);
    const int labelsLeft = slotWidth + kLabelGap;
    if (stacked) {
        TempoLbl->setGeometry(labelsLeft, 0, secondsWidth, kTempoBarHeight / 2);
        SngDurLbl->setGeometry(labelsLeft, kTempoBarHeight / 2, secondsWidth, kTempoBarHeight / 2);
    } else {
        TempoLbl->setGeometry(labelsLeft, 0, percentWidth, kTempoBarHeight);
        SngDurLbl->setGeometry(labelsLeft + percentWidth + kLabelGap, 0, secondsWidth, kTempoBarHeight);
    }
    setFixedSize(SngDurLbl->x() + SngDurLbl->width(), kTempoBarHeight);
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
