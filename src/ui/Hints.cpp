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

constexpr LaterWords kTitleHint = Words::Later("Song name, use the 'Change button' to change it");
constexpr LaterWords kCreatorHint = Words::Later("Song created by.., use the 'Change button' to enter your name there");

constexpr std::array kMainWindowHints{
    HintRow{"AboutBtn", Words::Later("About button, use it to read about Tonquill")},
    HintRow{"BrushBtn", Words::Later("Paint brush button, use this to choose paint brush for painting the tracks")},
    HintRow{"CloseImgBtn", Words::Later("Close button")},
    HintRow{"EmailBtn", Words::Later("Email Song button, use it to send this song to your friend by email")},
    HintRow{"EraserBtn", Words::Later("Eraser button, use this to choose eraser for painting the tracks")},
    HintRow{"HelpBtn", Words::Later("Help button, use it to see help")},
    HintRow{"MaximizeImgBtn", Words::Later("Maximize button")},
    HintRow{"MinimizeImgBtn", Words::Later("Minimize button")},
    HintRow{"NewBtn", Words::Later("New button, use it to start making your own new song")},
    HintRow{"OpenBtn", Words::Later("Open button, use it to open an existing song")},
    HintRow{"PlayAllBtn", Words::Later("Play all button, use it to play the full song (all tracks)")},
    HintRow{"PlayStopBtn", Words::Later("Stop play button, use it to stop any playing sound")},
    HintRow{"PlayToolBtn", Words::Later("Play Tool button, choose this button and click on track to play from there")},
    HintRow{"RestoreImgBtn", Words::Later("Restore button")},
    HintRow{"SaveBtn", Words::Later("Save button, use it to save the song you made")},
    HintRow{"SngCreateLbl", kCreatorHint},
    HintRow{"SngCreate2Lbl", kCreatorHint},
    HintRow{"SngDurLbl", Words::Later("Song duration in seconds")},
    HintRow{"SngTitleLbl", kTitleHint},
    HintRow{"SngTitle2Lbl", kTitleHint},
    HintRow{"SongTitleChgBtn", Words::Later("Change button, use it to change 'Song name' and 'Created by'")},
    HintRow{"StatusFramePic", kStatusFrameHint},
    HintRow{"TempoLbl", Words::Later("Tempo percentage, use the tempo slider to change")},
    HintRow{"TempoPrtImg", Words::Later("Slide this pointer to adjust tempo")},
    HintRow{"TempoSliderImg", Words::Later("Tempo slider, use it to change the speed of the song")},
    HintRow{"TrackAddBtn", Words::Later("Add Music track button. Use it to add a new music track")},
    HintRow{"TrackAddRecBtn",
            Words::Later("Add Audio track button. Use it to record your voice sound or choose a wav file to add "
                         "as an audio track")},
    HintRow{"TrackAudioBtn", Words::Later("Recorded button, Click to edit your recording on this track")},
    HintRow{"TrackDeleteBtn", Words::Later("Delete button, Click to delete this track")},
    HintRow{"TrackPlayBtn", Words::Later("Track play button, use it to test play this track")},
    HintRow{"TrackTuneBtn", Words::Later("Tune button, Click to choose a tune, keep mouse over it to play")},
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

LaterWords MainWindowHint(std::string_view name)
{
    const auto* row = std::find_if(kMainWindowHints.begin(), kMainWindowHints.end(),
                                   [name](const HintRow& candidate) { return candidate.name == name; });
    return row == kMainWindowHints.end() ? LaterWords() : row->hint;
}

void SetStatusLbl(QLabel* label)
{
    StatusLbl() = label;
    HintPoint().reset();
}

namespace {

void ShowHintText(const QString& text)
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

} // namespace

void ShowHint(const Words& hint)
{
    ShowHintText(QtText(hint));
}

void SetHintOf(QWidget& widget, const Words& hint)
{
    const QString text = QtText(hint);
    widget.setProperty(kHintProperty, text);
    widget.setAccessibleDescription(text);
}

void ShowHintOf(const QWidget& widget)
{
    ShowHintText(widget.property(kHintProperty).toString());
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
        ShowHintOf(widget);
}

bool MouseMovedSinceHint()
{
    return HintPoint() != QCursor::pos();
}

void HintWatcher::Watch(QWidget& widget, const Words& hint)
{
    widget.setProperty(kHintProperty, QtText(hint));
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
    if (!hint.IsBlank())
        widget.setAccessibleDescription(QtText(hint));
}

bool HintWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && MouseMovedSinceHint()) {
        const auto& widget = *static_cast<QWidget*>(watched);
        if (!IsMeantForAnother(widget, *static_cast<QMouseEvent*>(event)))
            ShowHintOf(widget);
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        ShowHintOfFocus(*static_cast<QWidget*>(watched), *static_cast<QFocusEvent*>(event));
    return QObject::eventFilter(watched, event);
}

} // namespace sprout
