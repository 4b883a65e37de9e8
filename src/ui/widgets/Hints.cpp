// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Hints.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QVariant>

#include <algorithm>
#include <optional>
#include <vector>

#include "ui/words/QtText.h"

namespace sprout {

namespace {

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

struct HintStrip {
    QPointer<QLabel> label;
    bool desktopPlaces;
};

std::vector<HintStrip>& HintStrips()
{
    static std::vector<HintStrip> strips;
    return strips;
}

bool MayHideStatusLine(const QWidget& window, bool desktopPlaces)
{
    const QLabel* const status = StatusLbl();
    if (!status || !status->isVisible() || !window.isVisible() || status->window() == &window)
        return false;
    return desktopPlaces || window.frameGeometry().intersects(QRect(status->mapToGlobal(QPoint()), status->size()));
}

/// The pointer position when the hint was shown.
std::optional<QPoint>& HintPoint()
{
    static std::optional<QPoint> point;
    return point;
}

} // namespace

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
    std::erase_if(HintStrips(), [](const HintStrip& strip) { return strip.label.isNull(); });
    for (const auto& [label, desktopPlaces] : HintStrips())
        label->setText(MayHideStatusLine(*label->window(), desktopPlaces)
                           ? label->fontMetrics().elidedText(text, Qt::ElideRight, label->width())
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

void AddHintStrip(QLabel& strip, bool desktopPlaces)
{
    HintStrips().push_back({&strip, desktopPlaces});
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
