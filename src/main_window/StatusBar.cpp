// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/StatusBar.h"

#include <QPainter>
#include <QTextLayout>

#include "main_window/rules/MainWindowHints.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/Hints.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kInset = 12;
constexpr int kPartsApart = 10;
constexpr int kCellWidthPx = 36;
constexpr int kSoundWidthPx = 152; // fits the player's longest state
constexpr int kSoundNarrowPx = 110;
constexpr int kNarrowBar = 640;
constexpr int kTwoLinesFontPx = 12;
constexpr int kTwoLinesApart = 15;
constexpr int kFrameCorner = 9;
constexpr LaterWords kDeviceFailed = Words::Later("Device Failed:");
constexpr QColor kFailureRed{0xFF, 0x00, 0x00};

/// Where the first of two lines ends: after the last word that fits.
qsizetype FirstLineLength(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width);
    layout.endLayout();
    return line.textLength();
}

} // namespace

HintLabel::HintLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void HintLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    if (fontMetrics().horizontalAdvance(text()) <= width()) {
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text());
        return;
    }
    QFont small = font();
    small.setPixelSize(kTwoLinesFontPx);
    painter.setFont(small);
    const qsizetype firstLength = FirstLineLength(text(), small, width());
    const QString second = painter.fontMetrics().elidedText(text().mid(firstLength).trimmed(), Qt::ElideRight, width());
    // Closer than the font's own line spacing, which has room that these letters do not need.
    const int baseline = (height() - kTwoLinesApart + painter.fontMetrics().xHeight()) / 2 + 1;
    painter.drawText(0, baseline, text().left(firstLength));
    painter.drawText(0, baseline + kTwoLinesApart, second);
}

SoundLabel::SoundLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void SoundLabel::paintEvent(QPaintEvent* /*event*/)
{
    // The red depends on the text: once there is a device, the player's states have their own colour.
    const bool failed = text() == QtText(Words(kDeviceFailed));
    QFont shownFont = font();
    shownFont.setBold(failed);
    QPainter painter(this);
    painter.setFont(shownFont);
    painter.setPen(failed ? kFailureRed : palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()),
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

StatusBar::StatusBar(QWidget* parent, HintWatcher& watcher)
    : QWidget(parent),
      statusLbl(new HintLabel(this)),
      trackMouPosLbl(new QLabel(this)),
      soundStatusLbl(new SoundLabel(this))
{
    setObjectName(QStringLiteral("StatusFramePic"));
    watcher.Watch(*this, kStatusFrameHint);
    statusLbl->setObjectName(QStringLiteral("StatusLbl"));
    trackMouPosLbl->setObjectName(QStringLiteral("TrackMouPosLbl"));
    soundStatusLbl->setObjectName(QStringLiteral("SoundStatusLbl"));
    for (QLabel* label : {static_cast<QLabel*>(statusLbl), trackMouPosLbl, static_cast<QLabel*>(soundStatusLbl)}) {
        label->setFont(HintFont());
    }
    trackMouPosLbl->setTextFormat(Qt::PlainText);
    trackMouPosLbl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    watcher.Watch(*statusLbl, {});
    watcher.Watch(*soundStatusLbl, {});
    SetStatusLbl(statusLbl);
}

void StatusBar::ShowCell(std::string_view cell)
{
    SetText(*trackMouPosLbl, Words::AsIs(cell));
}

void StatusBar::ShowSoundDevices(int count)
{
    SetText(*soundStatusLbl, count >= 1 ? Words::Text("Ready") : kDeviceFailed);
}

void StatusBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kBark, 1));
    painter.setBrush(kSand);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kFrameCorner, kFrameCorner);
}

void StatusBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int soundWidth = width() < kNarrowBar ? kSoundNarrowPx : kSoundWidthPx;
    const int soundLeft = width() - kInset - soundWidth;
    soundStatusLbl->setGeometry(soundLeft, 0, soundWidth, height());
    const int cellLeft = soundLeft - kPartsApart - kCellWidthPx;
    trackMouPosLbl->setGeometry(cellLeft, 0, kCellWidthPx, height());
    statusLbl->setGeometry(kInset, 0, cellLeft - kPartsApart - kInset, height());
}

} // namespace sprout
