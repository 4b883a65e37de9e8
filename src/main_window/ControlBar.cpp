// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/ControlBar.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

#include "main_window/TempoBar.h"
#include "ui/Hints.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

constexpr int kCaptionGap = 6;
constexpr int kTitleAndAuthorApart = 16;
constexpr int kLeastTitle = 90;
constexpr int kBelowTheLine = 4;

QRect RectOf(const BarPlace& place)
{
    return {place.left, place.top, place.width, place.height};
}

/// Shows a text, cut to the label's width; the whole of it is there for a screen reader.
void ShowCut(QLabel& label, const QString& text)
{
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, label.width()));
    label.setAccessibleName(text);
}

} // namespace

ControlBar::ControlBar(QWidget* parent, HintWatcher& watcher)
    : QWidget(parent),
      titleCaption(&AddSongLabel("SngTitle2Lbl", watcher)),
      titleText(&AddSongLabel("SngTitleLbl", watcher)),
      authorCaption(&AddSongLabel("SngCreate2Lbl", watcher)),
      authorText(&AddSongLabel("SngCreateLbl", watcher)),
      tempoBar(new TempoBar(this, watcher))
{
    setObjectName(QStringLiteral("ControlFramePic"));
    watcher.Watch(*this, "");
    titleCaption->setText(tr("Song"));
    authorCaption->setText(tr("by"));
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

int ControlBar::HeightFor(int width)
{
    return PlaceControlBar(width).height;
}

void ControlBar::ShowSong(std::string_view songTitle, std::string_view songAuthor)
{
    title = QtText(songTitle);
    author = QtText(songAuthor);
    PlaceSongLabels(PlaceControlBar(width()));
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
    const ControlBarPlaces places = PlaceControlBar(width());
    for (std::size_t tool = 0; tool < kBarTools; ++tool)
        if (tools[tool])
            tools[tool]->setGeometry(RectOf(places.tools[tool]));
    tempoBar->FitWidth(places.tempo.width);
    tempoBar->move(places.tempo.left + (places.songInOneLine ? 0 : places.tempo.width - tempoBar->width()),
                   places.tempo.top);
    PlaceSongLabels(places);
}

void ControlBar::PlaceSongLabels(const ControlBarPlaces& places)
{
    const QRect room = RectOf(places.song);
    const int lineHeight = places.songInOneLine ? room.height() : room.height() * 11 / 20;
    const int captionWidth = titleCaption->sizeHint().width() + kCaptionGap;
    const int authorCaptionWidth = authorCaption->sizeHint().width() + kCaptionGap;
    const int titleNeeds = titleText->fontMetrics().horizontalAdvance(title) + 2;
    titleCaption->setGeometry(room.x(), room.y(), captionWidth, lineHeight);
    const int titleLeft = room.x() + captionWidth;
    if (!places.songInOneLine) {
        titleText->setGeometry(titleLeft, room.y(), room.right() + 1 - titleLeft, lineHeight);
        // What hangs below the line reaches into the gap between the rows.
        const int authorHeight = room.height() - lineHeight + kBelowTheLine;
        authorCaption->setGeometry(room.x(), room.y() + lineHeight, captionWidth, authorHeight);
        authorText->setGeometry(titleLeft, room.y() + lineHeight, room.right() + 1 - titleLeft, authorHeight);
        return FitSongLabels();
    }
    const int authorNeeds = authorCaptionWidth + authorText->fontMetrics().horizontalAdvance(author) + 2;
    const int bothGet = room.width() - captionWidth - kTitleAndAuthorApart;
    const int titleGets = std::min(titleNeeds, std::max(kLeastTitle, bothGet - authorNeeds));
    titleText->setGeometry(titleLeft, room.y(), titleGets, lineHeight);
    const int authorLeft = titleLeft + titleGets + kTitleAndAuthorApart;
    authorCaption->setGeometry(authorLeft, room.y(), authorCaptionWidth, lineHeight);
    const int authorTextLeft = authorLeft + authorCaptionWidth;
    authorText->setGeometry(authorTextLeft, room.y(), std::max(0, room.right() + 1 - authorTextLeft), lineHeight);
    FitSongLabels();
}

void ControlBar::FitSongLabels()
{
    ShowCut(*titleText, title);
    ShowCut(*authorText, author);
}

bool ControlBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        Q_EMIT SongTitleDoubleClicked();
    return QWidget::eventFilter(watched, event);
}

} // namespace sprout
