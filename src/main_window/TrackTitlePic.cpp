// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTitlePic.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

#include "core/Shared.h"
#include "main_window/TitleRow.h"
#include "main_window/rules/TitleStrip.h"
#include "ui/look/Palette.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kRingAround = 3;

} // namespace

TrackTitlePic::TrackTitlePic(const TrackView& shownView, ButtonScheme& scheme, const TrackCanvasCalls& windowCalls,
                             QWidget* parent)
    : TrackSurface("TrackTitlePic", kSand, parent),
      view(shownView),
      buttons(scheme),
      calls(windowCalls),
      watcher(this),
      controls(*this, scheme, windowCalls),
      rowButtons(controls)
{
    // The pointer does not move the focus, so Space keeps playing and stopping.
    setFocusPolicy(Qt::TabFocus);
    SetSpokenRole(*this, QAccessible::ToolBar);
    SetSpokenName(*this, Words::Text("Buttons of the tracks"));
    SetSpokenDescription(
        *this, Words::Text("Choose a track with up and down and its button with left and right, press Enter."));
    WatchControls();
}

void TrackTitlePic::WatchControls()
{
    for (QWidget* label : {static_cast<QWidget*>(controls.headings[0]), static_cast<QWidget*>(controls.headings[1]),
                           static_cast<QWidget*>(controls.topLbl)}) {
        watcher.Watch(*label, {});
        label->installEventFilter(this);
    }
    for (ImageButton* button : {controls.audioBtn, controls.addBtn, controls.addRecBtn})
        button->installEventFilter(this);
    controls.tuneBtn->Hovered = [this] { TuneHovered(); };
}

void TrackTitlePic::Clear()
{
    TrackSurface::Clear();
    drawnRows.assign(static_cast<std::size_t>(std::max(VisibleRows(view), 0)) + 1, std::nullopt);
}

void TrackTitlePic::DrawAll(const SongState& song)
{
    Clear();
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        DrawRow(song, track);
}

void TrackTitlePic::DrawRow(const SongState& song, std::int32_t t)
{
    const auto row = static_cast<std::size_t>(t - view.FirstTrack);
    if (IsStale() || !RowIsVisible(view, t) || row >= drawnRows.size())
        return;
    const Track& track = At(song.Tracks, t);
    const auto& drawn = drawnRows[row];
    if (drawn && drawn->trackType == track.TrackType && SamePicture(drawn->picture, track.TrackTune.Picture))
        return;
    SurfacePainter painter = Painter();
    PaintTitleRow(painter, track, t, RowTop(view, t), PixelRatio());
    Changed(QRect(0, RowTop(view, t) + kBackgroundTop, width(), kBackgroundHeight));
    drawnRows[row] = RowLook{track.TrackType, track.TrackTune.Picture};
}

void TrackTitlePic::PlaceAddButtons(std::int32_t trackCount)
{
    choice.FitSong(trackCount);
    controls.PlaceAddButtons(view, trackCount);
}

void TrackTitlePic::HoverAt(std::int32_t x, std::int32_t y)
{
    const SongState& song = Shared().Song;
    const std::int32_t track = TitleStripTrack(view, song.TrackCount, y);
    const bool isAudio = track > 0 && At(song.Tracks, track).IsAudio();
    rowButtons.Place(HoverTitleStrip(view, track, isAudio, x, y), song);
}

void TrackTitlePic::HideTrackButtons()
{
    if (rowButtons.Hide())
        update();
}

void TrackTitlePic::TuneHovered()
{
    if (rowButtons.RefreshTune(Shared().Song))
        Ask(calls.EnableTrackTitlePlayTimer);
}

bool TrackTitlePic::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        if (watched == controls.audioBtn)
            Ask(calls.EnableTrackTitlePlayTimer);
        else
            LeaveRows();
    }
    return TrackSurface::eventFilter(watched, event);
}

void TrackTitlePic::LeaveRows()
{
    rowButtons.Place({}, Shared().Song);
}

void TrackTitlePic::mousePressEvent(QMouseEvent* event)
{
    TrackSurface::mousePressEvent(event);
    // After a scroll the pointer can be over a row without a move; the press shows what it would press.
    HoverAt(event->position().toPoint().x(), event->position().toPoint().y());
}

void TrackTitlePic::mouseMoveEvent(QMouseEvent* event)
{
    // A button passes on its moves, which are not over the strip itself.
    if (childAt(event->position().toPoint()))
        return;
    ShowHint({});
    HoverAt(event->position().toPoint().x(), event->position().toPoint().y());
}

void TrackTitlePic::leaveEvent(QEvent* event)
{
    HideTrackButtons();
    TrackSurface::leaveEvent(event);
}

void TrackTitlePic::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return ChooseRow(choice.Row() - 1);
    case Qt::Key_Down:
        return ChooseRow(choice.Row() + 1);
    case Qt::Key_Left:
        return ChooseColumn(-1);
    case Qt::Key_Right:
        return ChooseColumn(1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event->isAutoRepeat())
            PressChosen();
        return;
    case Qt::Key_Escape:
        if (rowButtons.AreShown())
            return HideTrackButtons();
        break;
    default:
        break;
    }
    TrackSurface::keyPressEvent(event);
}

void TrackTitlePic::ChooseRow(std::int32_t track)
{
    choice.ChooseRow(track, Shared().Song.TrackCount);
    Q_EMIT RowChosen(choice.Row());
    ShowChosen();
}

void TrackTitlePic::ChooseColumn(std::int32_t step)
{
    choice.ChooseColumn(step);
    ChooseRow(choice.Row());
}

void TrackTitlePic::ShowChosen()
{
    const StripChoice::Point place = choice.Place(view);
    HoverAt(place.x, place.y);
    if (QAbstractButton* button = rowButtons.Visible()) {
        SetSpokenName(*this, Words::Text("Track %1, %2", choice.Row(), button->accessibleName().toStdString()));
        ShowHintOf(*button);
        if (const auto* raised = qobject_cast<ImageButton*>(button))
            buttons.ButtonHover(*raised);
        if (TrackTuneBtnVisible() || TrackAudioBtnVisible())
            Ask(calls.EnableTrackTitlePlayTimer);
    }
    update();
}

void TrackTitlePic::PressChosen()
{
    if (!rowButtons.AreShown())
        return ChooseRow(choice.Row());
    if (QAbstractButton* button = rowButtons.Visible())
        button->click();
}

void TrackTitlePic::focusInEvent(QFocusEvent* event)
{
    TrackSurface::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        ChooseRow(choice.Row() > 0 ? choice.Row() : view.FirstTrack);
}

void TrackTitlePic::focusOutEvent(QFocusEvent* event)
{
    HideTrackButtons();
    TrackSurface::focusOutEvent(event);
}

void TrackTitlePic::PaintOver(QPainter& painter)
{
    if (!hasFocus() || !FocusByKey() || choice.Row() == 0)
        return;
    PaintFocusRing(painter, QRect(0, RowTop(view, choice.Row()), width(), kRowHeight));
    if (const QAbstractButton* button = rowButtons.Visible())
        PaintFocusRing(painter, button->geometry().adjusted(-kRingAround, -kRingAround, kRingAround, kRingAround));
}

} // namespace sprout
