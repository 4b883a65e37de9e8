// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Hints.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QVariant>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "ui/QtText.h"

namespace sprout {

namespace {

constexpr std::string_view kTitleHint = "Song name, use the 'Change button' to change it";
constexpr std::string_view kCreatorHint = "Song created by.., use the 'Change button' to enter your name there";

constexpr std::array kMainWindowHints{
    HintRow{"AboutBtn", "About button, use it to read about Tonquill"},
    HintRow{"BrushBtn", "Paint brush button, use this to choose paint brush for painting the tracks"},
    HintRow{"CloseImgBtn", "Close button"},
    HintRow{"EmailBtn", "Email Song button, use it to send this song to your friend by email"},
    HintRow{"EraserBtn", "Eraser button, use this to choose eraser for painting the tracks"},
    HintRow{"HelpBtn", "Help button, use it to see help"},
    HintRow{"MaximizeImgBtn", "Maximize button"},
    HintRow{"MinimizeImgBtn", "Minimize button"},
    HintRow{"NewBtn", "New button, use it to start making your own new song"},
    HintRow{"OpenBtn", "Open button, use it to open an existing song"},
    HintRow{"PlayAllBtn", "Play all button, use it to play the full song (all tracks)"},
    HintRow{"PlayStopBtn", "Stop play button, use it to stop any playing sound"},
    HintRow{"PlayToolBtn", "Play Tool button, choose this button and click on track to play from there"},
    HintRow{"RestoreImgBtn", "Restore button"},
    HintRow{"SaveBtn", "Save button, use it to save the song you made"},
    HintRow{"SngCreateLbl", kCreatorHint},
    HintRow{"SngCreate2Lbl", kCreatorHint},
    HintRow{"SngDurLbl", "Song duration in seconds"},
    HintRow{"SngTitleLbl", kTitleHint},
    HintRow{"SngTitle2Lbl", kTitleHint},
    HintRow{"SongTitleChgBtn", "Change button, use it to change 'Song name' and 'Created by'"},
    HintRow{"StatusFramePic", kStatusFrameHint},
    HintRow{"TempoLbl", "Tempo percentage, use the tempo slider to change"},
    HintRow{"TempoPrtImg", "Slide this pointer to adjust tempo"},
    HintRow{"TempoSliderImg", "Tempo slider, use it to change the speed of the song"},
    HintRow{"TrackAddBtn", "Add Music track button. Use it to add a new music track"},
    HintRow{"TrackAddRecBtn", "Add Audio track button. Use it to record your voice sound or choose a wav file to add "
                              "as an audio track"},
    HintRow{"TrackAudioBtn", "Recorded button, Click to edit your recording on this track"},
    HintRow{"TrackDeleteBtn", "Delete button, Click to delete this track"},
    HintRow{"TrackPlayBtn", "Track play button, use it to test play this track"},
    HintRow{"TrackTuneBtn", "Tune button, Click to choose a tune, keep mouse over it to play"},
};

/// Qt passes an ignored move event on to the parent widget, which must not treat it as its own.
bool IsMeantForAnother(const QWidget& widget, const QMouseEvent& move)
{
    const QWidget* under = widget.childAt(move.position().toPoint());
    while (under && under != &widget && !under->property(kHintProperty).isValid())
        under = under->parentWidget();
    return under && under != &widget;
}

QPointer<QLabel>& StatusLbl()
{
    static QPointer<QLabel> label;
    return label;
}

std::vector<QPointer<QLabel>>& HintStrips()
{
    static std::vector<QPointer<QLabel>> strips;
    return strips;
}

bool HidesStatusLine(const QWidget& window)
{
    const QLabel* const status = StatusLbl();
    return status && status->isVisible() && window.isVisible() && status->window() != &window &&
           window.frameGeometry().intersects(QRect(status->mapToGlobal(QPoint()), status->size()));
}

/// The pointer position when the hint was shown.
std::optional<QPoint>& HintPoint()
{
    static std::optional<QPoint> point;
    return point;
}

} // namespace

std::string_view MainWindowHint(std::string_view name)
{
    const auto* row = std::find_if(kMainWindowHints.begin(), kMainWindowHints.end(),
                                   [name](const HintRow& candidate) { return candidate.name == name; });
    return row == kMainWindowHints.end() ? std::string_view() : row->hint;
}

void SetStatusLbl(QLabel* label)
{
    StatusLbl() = label;
    HintPoint().reset();
}

void ShowHint(const QString& text)
{
    if (StatusLbl())
        StatusLbl()->setText(text);
    std::erase_if(HintStrips(), [](const QPointer<QLabel>& strip) { return strip.isNull(); });
    for (const QPointer<QLabel>& strip : HintStrips())
        strip->setText(HidesStatusLine(*strip->window())
                           ? strip->fontMetrics().elidedText(text, Qt::ElideRight, strip->width())
                           : QString());
    HintPoint() = QCursor::pos();
}

void AddHintStrip(QLabel& strip)
{
    HintStrips().emplace_back(&strip);
}

void ShowHintOfFocus(const QWidget& widget, const QFocusEvent& event)
{
    if (event.reason() != Qt::TabFocusReason && event.reason() != Qt::BacktabFocusReason)
        return;
    // An opening dialog sends its first control a Tab focus event before it has the focus; the current hint belongs to
    // the dialog's question.
    if (event.lostFocus())
        ShowHint({});
    else if (widget.hasFocus())
        ShowHint(widget.property(kHintProperty).toString());
}

bool MouseMovedSinceHint()
{
    return HintPoint() != QCursor::pos();
}

void HintWatcher::Watch(QWidget& widget, std::string_view hint)
{
    widget.setProperty(kHintProperty, QtText(hint));
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
    if (!hint.empty())
        widget.setAccessibleDescription(QtText(hint));
}

bool HintWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && MouseMovedSinceHint()) {
        const auto& widget = *static_cast<QWidget*>(watched);
        if (!IsMeantForAnother(widget, *static_cast<QMouseEvent*>(event)))
            ShowHint(widget.property(kHintProperty).toString());
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        ShowHintOfFocus(*static_cast<QWidget*>(watched), *static_cast<QFocusEvent*>(event));
    return QObject::eventFilter(watched, event);
}

} // namespace sprout
