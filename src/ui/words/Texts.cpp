// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/Texts.h"

#include "ui/words/FittingFont.h"
#include "ui/words/QtText.h"
#include "ui/words/QtTip.h"

namespace sprout {

namespace {

/// Property of a label whose letters may be smaller now: its font with letters of full size.
constexpr const char* kFullFont = "fullFont";

QString LongTip(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

} // namespace

void SetText(QLabel& label, const Words& words)
{
    label.setText(QtText(words));
}

void SetCutText(QLabel& label, const Words& words)
{
    const QString text = QtText(words);
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, label.width()));
    label.setAccessibleName(text);
}

void SetFittingText(QLabel& label, const Words& words)
{
    if (!label.property(kFullFont).isValid())
        label.setProperty(kFullFont, label.font());
    label.setFont(FittingFont(label.property(kFullFont).value<QFont>(), QtText(words), label.width()));
    SetCutText(label, words);
    SetToolTip(label, label.text() == label.accessibleName() ? Words() : words);
}

void SetContent(QLineEdit& box, std::string_view text)
{
    box.setText(QtText(text));
}

void SetSpokenNameOf(QWidget& widget, const QLabel& label)
{
    widget.setAccessibleName(label.text());
}

void SetTitle(QWidget& window, const Words& words)
{
    window.setWindowTitle(QtText(words));
}

void SetToolTip(QWidget& widget, const Words& words)
{
    widget.setToolTip(QtTip(QtText(words).toStdString()));
}

void SetLongToolTip(QWidget& widget, const Words& words)
{
    widget.setToolTip(LongTip(QtText(words)));
}

void SetLongToolTip(QListWidgetItem& item, const Words& words)
{
    item.setToolTip(LongTip(QtText(words)));
}

void SetSpokenName(QWidget& widget, const Words& words)
{
    widget.setAccessibleName(QtText(words));
}

void SetSpokenDescription(QWidget& widget, const Words& words)
{
    widget.setAccessibleDescription(QtText(words));
}

QAction* AddItem(QMenu& menu, const Words& words)
{
    return menu.addAction(QtText(words));
}

void AddItem(QComboBox& box, const Words& words, const QVariant& data)
{
    box.addItem(QtText(words), data);
}

void InsertItem(QComboBox& box, int index, const Words& words, const QVariant& data)
{
    box.insertItem(index, QtText(words), data);
}

void AddCutItem(QComboBox& box, const Words& words, int room)
{
    const QString text = QtText(words).simplified();
    box.addItem(box.fontMetrics().elidedText(text, Qt::ElideRight, room));
    const int row = box.count() - 1;
    box.setItemData(row, LongTip(text), Qt::ToolTipRole);
    box.setItemData(row, text, Qt::AccessibleTextRole);
}

QListWidgetItem* AddLine(QListWidget& list, const Words& words)
{
    return new QListWidgetItem(QtText(words), &list);
}

} // namespace sprout
