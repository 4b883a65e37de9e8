// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/NameLabel.h"

#include <QPainter>
#include <QTextLayout>

#include "ui/look/Look.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

/// The part of a text that fits on the first line; words stay whole if possible.
QString FirstLineOfName(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(width);
    layout.endLayout();
    return line.isValid() ? text.left(line.textLength()) : QString();
}

} // namespace

NameLabel::NameLabel(QWidget* parent) : QLabel(parent)
{
    setFont(ButtonFont());
    setTextFormat(Qt::PlainText);
}

void NameLabel::ShowName(const Words& name)
{
    SetText(*this, name);
    SetLongToolTip(*this, name);
}

void NameLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QString first = FirstLineOfName(text(), font(), width());
    const QString rest = fontMetrics().elidedText(text().mid(first.size()), Qt::ElideRight, width());
    const int lineHeight = height() / 2;
    if (rest.isEmpty())
        return painter.drawText(rect(), Qt::AlignCenter, first);
    painter.drawText(QRect(0, 0, width(), lineHeight), Qt::AlignCenter, first.trimmed());
    painter.drawText(QRect(0, lineHeight, width(), lineHeight), Qt::AlignCenter, rest.trimmed());
}

} // namespace sprout
