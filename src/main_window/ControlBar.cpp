// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/ControlBar.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

#include "main_window/TempoBar.h"
#include "main_window/rules/MainWindowHints.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/PutAt.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kCaptionGap = 6;
constexpr int kBelowTheLine = 4;

int CaptionWidth(const QLabel& caption)
{
    return caption.sizeHint().width() + kCaptionGap;
}

int WidthOfText(const QLabel& label, const Words& text)
{
    return label.fontMetrics().horizontalAdvance(QtText(text)) + 2;
}

/// How much lower a small text must be than a large one to share its baseline, if each is in the middle of its label's
/// height.
int BaselineBelow(const QLabel& large, const QLabel& small)
{
    const auto belowMiddle = [](const QFontMetrics& font) { return (font.ascent() - font.descent()) / 2.0; };
    return qRound(belowMiddle(large.fontMetrics()) - belowMiddle(small.fontMetrics()));
}

} // namespace

ControlBar::ControlBar(QWidget* parent, HintWatcher& watcher, EmailTool email)
    : QWidget(parent),
      emailTool(email),
      titleCaption(&AddSongLabel("SngTitle2Lbl", watcher)),
      titleText(&AddSongLabel("SngTitleLbl", watcher)),
      authorCaption(&AddSongLabel("SngCreate2Lbl", watcher)),
      authorText(&AddSongLabel("SngCreateLbl", watcher)),
      tempoBar(new TempoBar(this, watcher))
{
    setObjectName(QStringLiteral("ControlFramePic"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    watcher.Watch(*this, {});
    SetText(*titleCaption, Words::Text("Song"));
    SetText(*authorCaption, Words::Text("by"));
    titleText->setFont(TitleFont());
    connect(tempoBar, &TempoBar::TempoChanged, this, &ControlBar::TempoChanged);
}

QLabel& ControlBar::AddSongLabel(const char* name, HintWatcher& watcher)
{
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(LabelFont());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->installEventFilter(this);
    watcher.Watch(*label, MainWindowHint(name));
    return *label;
}

void ControlBar::AddTool(BarTool tool, ImageButton& button)
{
    button.setParent(this);
    tools[static_cast<std::size_t>(tool)] = &button;
}

int ControlBar::HeightFor(int width) const
{
    return PlaceControlBar(width, emailTool).height;
}

void ControlBar::ShowSong(std::string_view songTitle, std::string_view songAuthor)
{
    title = Words::AsIs(songTitle);
    author = Words::AsIs(songAuthor);
    PlaceSongLabels(PlaceControlBar(width(), emailTool));
}

void ControlBar::UpdateTempoSliderValue()
{
    tempoBar->UpdateTempoSliderValue();
}

void ControlBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kPaper);
    painter.fillRect(QRect(0, height() - 1, width(), 1), kBark);
}

void ControlBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const ControlBarPlaces places = PlaceControlBar(width(), emailTool);
    for (std::size_t tool = 0; tool < kBarTools; ++tool)
        if (tools[tool])
            PutAt(*tools[tool], places.tools[tool]);
    tempoBar->FitRoom(RectOf(places.tempo).size());
    tempoBar->move(places.tempo.left + (places.songInOneLine ? 0 : places.tempo.width - tempoBar->width()),
                   places.tempo.top);
    PlaceSongLabels(places);
}

void ControlBar::PlaceSongLabels(const ControlBarPlaces& places)
{
    if (places.songInOneLine)
        PlaceSongInOneLine(RectOf(places.song));
    else
        PlaceSongInTwoLines(RectOf(places.song));
    SetCutText(*titleText, title);
    SetCutText(*authorText, author);
}

void ControlBar::PlaceSongInOneLine(const QRect& room)
{
    const SongLine line = FitSongLine({CaptionWidth(*titleCaption), WidthOfText(*titleText, title),
                                       CaptionWidth(*authorCaption), WidthOfText(*authorText, author)},
                                      room.width());
    const int smallTop = room.y() + BaselineBelow(*titleText, *authorText);
    titleCaption->setVisible(line.hasCaption);
    authorCaption->setVisible(line.hasAuthorCaption);
    titleCaption->setGeometry(room.x(), smallTop, line.titleLeft, room.height());
    titleText->setGeometry(room.x() + line.titleLeft, room.y(), line.titleWidth, room.height());
    authorCaption->setGeometry(room.x() + line.authorCaptionLeft, smallTop, line.authorLeft - line.authorCaptionLeft,
                               room.height());
    authorText->setGeometry(room.x() + line.authorLeft, smallTop, line.authorWidth, room.height());
}

void ControlBar::PlaceSongInTwoLines(const QRect& room)
{
    const int lineHeight = room.height() * 11 / 20;
    const int captionWidth = CaptionWidth(*titleCaption);
    const int textWidth = room.width() - captionWidth;
    // Descenders reach into the gap between the rows.
    const int authorHeight = room.height() - lineHeight + kBelowTheLine;
    for (QLabel* label : {titleCaption, authorCaption, authorText})
        label->show();
    titleCaption->setGeometry(room.x(), room.y() + BaselineBelow(*titleText, *titleCaption), captionWidth, lineHeight);
    titleText->setGeometry(room.x() + captionWidth, room.y(), textWidth, lineHeight);
    authorCaption->setGeometry(room.x(), room.y() + lineHeight, captionWidth, authorHeight);
    authorText->setGeometry(room.x() + captionWidth, room.y() + lineHeight, textWidth, authorHeight);
}

bool ControlBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        Q_EMIT SongTitleDoubleClicked();
    return QWidget::eventFilter(watched, event);
}

} // namespace sprout
