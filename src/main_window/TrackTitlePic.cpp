// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTitlePic.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>

#include "core/Shared.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackLabel.h"
#include "main_window/TrackPictures.h"
#include "main_window/TrackTuneBtn.h"
#include "ui/Dialogs.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/SpokenRoles.h"

namespace sprout {

namespace {

constexpr const char* kLabel1Message = "Click on the Play button below this.";
constexpr const char* kLabel5Message = "Click on the Tune button below this.";

constexpr QRect kLabel5Place{16, 0, 48, 19};
constexpr QRect kLabel1Place{96, 0, 44, 19};

constexpr QSize kPictureButtonSize{34, 34};
constexpr int kPictureButtonLeft = kTrackPictureLeft - 1;
constexpr QSize kAddButtonSize{kAddButtonSide, kAddButtonSide};
constexpr int kAddButtonLeft = (kTitleStripWidth - kAddButtonsApart - kAddButtonSize.width()) / 2;
constexpr int kRingAround = 3;
constexpr int kTopLblGap = 2;
constexpr int kTopLblHeight = 22;

constexpr std::int32_t kThreeDigits = 100;
constexpr int kSmallNumberPixels = 12;

/// Where a button floats in a row, for choosing it by key.
struct StripColumn {
    std::int32_t x;
    std::int32_t y; ///< below the row's top
};
constexpr std::array kStripColumns{StripColumn{40, 22}, StripColumn{77, 22}, StripColumn{118, 22}};
constexpr std::int32_t kPlayColumn = 2;

/// Runs the window's function for a button, if there is one.
void RunCall(const std::function<void()>& call)
{
    if (call)
        call();
}

} // namespace

TrackTitlePic::TrackTitlePic(const TrackView& shownView, ButtonScheme& scheme, const TrackCanvasCalls& windowCalls,
                             QWidget* parent)
    : TrackSurface("TrackTitlePic", kSand, parent),
      view(shownView),
      buttons(scheme),
      calls(windowCalls),
      watcher(this),
      chosenColumn(kPlayColumn)
{
    // The pointer does not move the focus, so Space keeps playing and stopping.
    setFocusPolicy(Qt::TabFocus);
    SetSpokenRole(*this, QAccessible::ToolBar);
    setAccessibleName(tr("Buttons of the tracks"));
    setAccessibleDescription(tr("Choose a track with up and down and its button with left and right, press Enter."));
    MakeHeadings();
    MakeTuneBtn();
    MakeButtons();
    MakeTopLbl();
}

void TrackTitlePic::MakeHeadings()
{
    const auto add = [this](const char* name, const QString& text, const char* message, const QRect& place) {
        auto* label = new TrackLabel(
            name, text, [message] { ShowMessage(message); }, this);
        label->setGeometry(place);
        label->setAccessibleDescription(QString::fromUtf8(message));
        watcher.Watch(*label, "");
        label->installEventFilter(this);
    };
    add("Label5", tr("Tune"), kLabel5Message, kLabel5Place);
    add("Label1", tr("Play"), kLabel1Message, kLabel1Place);
}

ImageButton& TrackTitlePic::AddStripButton(const ButtonRow& row, QSize size, const std::function<void()>& onClick)
{
    ImageButton& button = buttons.AddButton(row, [&onClick] {
        ShowHint({});
        RunCall(onClick);
    });
    button.setParent(this);
    button.resize(size);
    return button;
}

void TrackTitlePic::MakeButtons()
{
    const auto hint = [](const char* name) { return MainWindowHint(name).data(); };
    // In the order of the window's table.
    playBtn = &AddStripButton({"TrackPlayBtn", "Play track", hint("TrackPlayBtn")}, kPlayPicSize, calls.TrackPlayBtn);
    audioBtn =
        &AddStripButton({"TrackAudioBtn", "Recording", hint("TrackAudioBtn")}, kPictureButtonSize, calls.TrackAudioBtn);
    addRecBtn = &AddStripButton({"TrackAddRecBtn", "Add audio track", hint("TrackAddRecBtn")}, kAddButtonSize,
                                calls.TrackAddRecBtn);
    addBtn =
        &AddStripButton({"TrackAddBtn", "Add music track", hint("TrackAddBtn")}, kAddButtonSize, calls.TrackAddBtn);
    deleteBtn = &AddStripButton({"TrackDeleteBtn", "Delete track", hint("TrackDeleteBtn"), Plate::Title},
                                kDeleteButtonPicSize, calls.TrackDeleteBtn);
    // The keyboard reaches them through the strip.
    for (ImageButton* button : {audioBtn, deleteBtn, playBtn}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->hide();
    }
    audioBtn->installEventFilter(this);
    setTabOrder(addBtn, addRecBtn);
    for (ImageButton* button : {addBtn, addRecBtn}) {
        button->show();
        button->installEventFilter(this);
    }
}

void TrackTitlePic::MakeTuneBtn()
{
    tuneBtn = new TrackTuneBtn(this);
    tuneBtn->Hovered = [this] { TuneHovered(); };
    connect(tuneBtn, &QAbstractButton::clicked, this, [this] {
        ShowHint({});
        RunCall(calls.TrackTuneBtn);
    });
}

void TrackTitlePic::MakeTopLbl()
{
    topLbl = new QLabel(tr("Add a track"), this);
    topLbl->setObjectName(QStringLiteral("TrackTopLbl"));
    topLbl->setFont(HintFont());
    topLbl->setAlignment(Qt::AlignCenter);
    topLbl->resize(kAddButtonsApart + kAddButtonSize.width(), kTopLblHeight);
    watcher.Watch(*topLbl, "");
    topLbl->installEventFilter(this);
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
    PaintRow(track, t);
    drawnRows[row] = RowLook{track.TrackType, track.TrackTune.Picture};
}

void TrackTitlePic::PaintRow(const Track& track, std::int32_t number)
{
    const std::int32_t top = RowTop(view, number);
    const QRect background(0, top + kBackgroundTop, width(), kBackgroundHeight);
    const QRect picture(kTrackPictureLeft, top + kPaintTop, kPictureSide, kPictureSide);
    SurfacePainter painter = Painter();
    painter.Tile(background, TrackBlankPic(track.TrackType, PixelRatio()));
    if (track.IsAudio())
        painter.Lay(picture, CanvasPicture("RecordButtonPic", picture.size(), PixelRatio()));
    else
        painter.LayBitmap(picture, RaisedTunePicture(track.TrackTune.Picture));

    QFont font = ButtonFont();
    if (number >= kThreeDigits)
        font.setPixelSize(kSmallNumberPixels);
    painter.Write(TrackNumberLeft(number), top + kTrackNumberTop, font, QString::number(number));
    painter.Lay(QRect(QPoint(kDeleteButtonLeft, top + kDeleteButtonTop), kDeleteButtonPicSize),
                CanvasPicture("DeleteButtonPic", kDeleteButtonPicSize, PixelRatio()));
    painter.Lay(QRect(QPoint(kPlayPicLeft, top + kPlayPicTop), kPlayPicSize),
                CanvasPicture("PlayPic", kPlayPicSize, PixelRatio()));
    Changed(background);
}

void TrackTitlePic::PlaceAddButtons(std::int32_t trackCount)
{
    const int top = AddButtonsTop(view, trackCount);
    chosenRow = std::min(chosenRow, trackCount); // the frame of a deleted track goes to the last one
    addBtn->move(kAddButtonLeft, top);
    addRecBtn->move(kAddButtonLeft + kAddButtonsApart, top);
    topLbl->move(kAddButtonLeft, top + kAddButtonSize.height() + kTopLblGap);
}

bool TrackTitlePic::TrackTuneBtnVisible() const
{
    return tuneBtn->isVisible();
}

bool TrackTitlePic::TrackAudioBtnVisible() const
{
    return audioBtn->isVisible();
}

void TrackTitlePic::HoverAt(std::int32_t x, std::int32_t y)
{
    const SongState& song = Shared().Song;
    const std::int32_t track = TitleStripTrack(view, song.TrackCount, y);
    const bool isAudio = track > 0 && At(song.Tracks, track).IsAudio();
    PlaceFloatingButtons(HoverTitleStrip(view, track, isAudio, x, y));
}

void TrackTitlePic::PlaceFloatingButtons(const FloatingButtons& shown)
{
    hoverTrack = shown.HoverTrack;
    if (shown.TrackTuneBtn)
        tuneBtn->SetTune(At(Shared().Song.Tracks, hoverTrack).TrackTune);
    const auto place = [](QWidget& button, bool visible, int x, int y) {
        if (visible)
            button.move(x, y);
        button.setVisible(visible);
    };
    place(*tuneBtn, shown.TrackTuneBtn, kPictureButtonLeft, shown.pictureButtonTop);
    place(*audioBtn, shown.TrackAudioBtn, kPictureButtonLeft, shown.pictureButtonTop);
    place(*deleteBtn, shown.TrackDeleteBtn, kDeleteButtonLeft, shown.deleteButtonTop);
    place(*playBtn, shown.TrackPlayBtn, kPlayPicLeft, shown.playButtonTop);
    overlayShown = shown.OverlayShown();
}

void TrackTitlePic::HideTrackButtons()
{
    if (!overlayShown)
        return;
    for (QAbstractButton* button : std::array<QAbstractButton*, 4>{tuneBtn, audioBtn, deleteBtn, playBtn})
        button->hide();
    overlayShown = false;
    update();
}

void TrackTitlePic::TuneHovered()
{
    const SongState& song = Shared().Song;
    if (hoverTrack < 1 || hoverTrack > song.TrackCount) {
        tuneBtn->hide();
        return;
    }
    tuneBtn->SetTune(At(song.Tracks, hoverTrack).TrackTune);
    RunCall(calls.EnableTrackTitlePlayTimer);
}

bool TrackTitlePic::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        if (watched == audioBtn)
            RunCall(calls.EnableTrackTitlePlayTimer);
        else
            LeaveRows();
    }
    return TrackSurface::eventFilter(watched, event);
}

void TrackTitlePic::LeaveRows()
{
    PlaceFloatingButtons({});
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
        return ChooseRow(chosenRow - 1);
    case Qt::Key_Down:
        return ChooseRow(chosenRow + 1);
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
        if (overlayShown)
            return HideTrackButtons();
        break;
    default:
        break;
    }
    TrackSurface::keyPressEvent(event);
}

void TrackTitlePic::ChooseRow(std::int32_t track)
{
    chosenRow = std::clamp(track, 1, std::max(Shared().Song.TrackCount, 1));
    Q_EMIT RowChosen(chosenRow);
    ShowChosen();
}

void TrackTitlePic::ChooseColumn(std::int32_t step)
{
    chosenColumn = std::clamp(chosenColumn + step, 0, static_cast<std::int32_t>(kStripColumns.size()) - 1);
    ChooseRow(chosenRow);
}

void TrackTitlePic::ShowChosen()
{
    const StripColumn& column = kStripColumns[static_cast<std::size_t>(chosenColumn)];
    HoverAt(column.x, RowTop(view, chosenRow) + column.y);
    if (QAbstractButton* button = FloatingButton()) {
        setAccessibleName(tr("Track %1, %2").arg(chosenRow).arg(button->accessibleName()));
        ShowHint(button->property(kHintProperty).toString());
        if (const auto* raised = qobject_cast<ImageButton*>(button))
            buttons.ButtonHover(*raised);
        if (TrackTuneBtnVisible() || TrackAudioBtnVisible())
            RunCall(calls.EnableTrackTitlePlayTimer);
    }
    update();
}

void TrackTitlePic::PressChosen()
{
    if (!overlayShown)
        return ChooseRow(chosenRow);
    if (QAbstractButton* button = FloatingButton())
        button->click();
}

QAbstractButton* TrackTitlePic::FloatingButton() const
{
    for (QAbstractButton* button : std::array<QAbstractButton*, 4>{tuneBtn, audioBtn, deleteBtn, playBtn})
        if (button->isVisible())
            return button;
    return nullptr;
}

void TrackTitlePic::focusInEvent(QFocusEvent* event)
{
    TrackSurface::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        ChooseRow(chosenRow > 0 ? chosenRow : view.FirstTrack);
}

void TrackTitlePic::focusOutEvent(QFocusEvent* event)
{
    HideTrackButtons();
    TrackSurface::focusOutEvent(event);
}

void TrackTitlePic::PaintOver(QPainter& painter)
{
    if (!hasFocus() || !FocusByKey() || chosenRow == 0)
        return;
    PaintFocusRing(painter, QRect(0, RowTop(view, chosenRow), width(), kRowHeight));
    if (const QAbstractButton* button = FloatingButton())
        PaintFocusRing(painter, button->geometry().adjusted(-kRingAround, -kRingAround, kRingAround, kRingAround));
}

} // namespace sprout
