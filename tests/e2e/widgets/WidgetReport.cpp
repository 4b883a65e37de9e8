// SPDX-License-Identifier: GPL-3.0-or-later
#include "WidgetReport.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace sprout {

namespace {

QJsonObject Place(const QWidget& widget, const QRect& area)
{
    const QPoint corner = widget.mapToGlobal(area.topLeft());
    return {{QStringLiteral("x"), corner.x()},
            {QStringLiteral("y"), corner.y()},
            {QStringLiteral("width"), area.width()},
            {QStringLiteral("height"), area.height()}};
}

QString TextOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    if (const auto* slider = qobject_cast<const QAbstractSlider*>(&widget))
        return QString::number(slider->value());
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return box->currentText();
    return widget.isWindow() ? widget.windowTitle() : QString();
}

QJsonArray RowsOf(const QAbstractItemView& view)
{
    QJsonArray rows;
    const QWidget& port = *view.viewport();
    for (int row = 0; view.model() && row < view.model()->rowCount(view.rootIndex()); ++row) {
        const QModelIndex index = view.model()->index(row, 0, view.rootIndex());
        const QRect area = view.visualRect(index);
        if (!port.rect().intersects(area))
            continue;
        QJsonObject item = Place(port, area);
        item[QStringLiteral("text")] = index.data().toString();
        rows.append(item);
    }
    return rows;
}

QJsonArray EntriesOf(const QMenu& menu)
{
    QJsonArray entries;
    for (QAction* action : menu.actions()) {
        QJsonObject item = Place(menu, menu.actionGeometry(action));
        item[QStringLiteral("text")] = action->text().remove(QLatin1Char('&'));
        entries.append(item);
    }
    return entries;
}

QJsonObject Told(const QWidget& widget, int window)
{
    QJsonObject told = Place(widget, widget.rect());
    told[QStringLiteral("name")] = widget.objectName();
    told[QStringLiteral("kind")] = QLatin1String(widget.metaObject()->className());
    told[QStringLiteral("window")] = window;
    told[QStringLiteral("enabled")] = widget.isEnabled();
    told[QStringLiteral("whole")] = widget.visibleRegion().boundingRect() == widget.rect();
    told[QStringLiteral("focus")] = widget.hasFocus();
    told[QStringLiteral("text")] = TextOf(widget);
    told[QStringLiteral("spoken")] = widget.accessibleName();
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        told[QStringLiteral("items")] = RowsOf(*view);
    if (const auto* menu = qobject_cast<const QMenu*>(&widget))
        told[QStringLiteral("items")] = EntriesOf(*menu);
    return told;
}

QWidgetList VisibleWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.erase(
        std::remove_if(windows.begin(), windows.end(), [](const QWidget* window) { return !window->isVisible(); }),
        windows.end());
    return windows;
}

/// The number of the window that another belongs to, or -1.
int ParentOf(const QWidget& window, const QWidgetList& windows)
{
    const QWindow* const parent = window.windowHandle() ? window.windowHandle()->transientParent() : nullptr;
    const auto found = std::find_if(windows.begin(), windows.end(), [parent](const QWidget* candidate) {
        return parent && candidate->windowHandle() == parent;
    });
    return found == windows.end() ? -1 : static_cast<int>(found - windows.begin());
}

} // namespace

QJsonObject WidgetReport()
{
    QJsonArray widgets;
    int number = 0;
    const QWidgetList windows = VisibleWindows();
    for (const QWidget* window : windows) {
        QJsonObject told = Told(*window, number);
        told[QStringLiteral("id")] = static_cast<qint64>(window->effectiveWinId());
        told[QStringLiteral("parent")] = ParentOf(*window, windows);
        told[QStringLiteral("popup")] = window->windowType() == Qt::Popup;
        widgets.append(told);
        for (const QWidget* part : window->findChildren<QWidget*>())
            if (!part->visibleRegion().isEmpty() && part->window() == window)
                widgets.append(Told(*part, number));
        ++number;
    }
    const QWidget* active = QApplication::activeWindow();
    return {{QStringLiteral("active"), active ? active->objectName() : QString()},
            {QStringLiteral("activeKind"), active ? QLatin1String(active->metaObject()->className()) : QLatin1String()},
            {QStringLiteral("widgets"), widgets}};
}

} // namespace sprout
