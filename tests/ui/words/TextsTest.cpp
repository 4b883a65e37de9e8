// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/Texts.h"

#include <gtest/gtest.h>

#include <QAction>

namespace sprout {
namespace {

const Words kLong = Words::Text("What was not saved last time is kept as the song %1", "\"Rain\"");
const QString kLongText = QStringLiteral("What was not saved last time is kept as the song \"Rain\"");
const Words kRich = Words::AsIs("<b>Rain</b> & 3 < 4");

TEST(Texts, GoToLabelsAndWindows)
{
    QLabel label;
    SetText(label, kLong);
    SetTitle(label, Words::Text("%1 - [%2]", "Painter", "Rain"));
    EXPECT_EQ(label.text(), kLongText);
    EXPECT_EQ(label.windowTitle(), QStringLiteral("Painter - [Rain]"));
}

TEST(Texts, GoToScreenReaders)
{
    QLabel label;
    SetSpokenName(label, Words::Text("Songs"));
    SetSpokenDescription(label, kLong);
    EXPECT_EQ(label.accessibleName(), QStringLiteral("Songs"));
    EXPECT_EQ(label.accessibleDescription(), kLongText);
    QLineEdit box;
    SetText(label, Words::Text("Song name"));
    SetSpokenNameOf(box, label);
    EXPECT_EQ(box.accessibleName(), QStringLiteral("Song name"));
}

TEST(Texts, AreCutOnTheScreenAndSpokenWhole)
{
    QLabel label;
    label.resize(80, 20);
    SetCutText(label, kLong);
    EXPECT_TRUE(label.text().endsWith(QChar(0x2026))) << qPrintable(label.text());
    EXPECT_EQ(label.accessibleName(), kLongText);
    EXPECT_EQ(label.toolTip(), QString());
}

TEST(Texts, HaveAToolTipWhereTheyAreCut)
{
    QLabel label;
    label.resize(80, 20);
    SetFittingText(label, kLong);
    EXPECT_EQ(label.toolTip(), kLongText);
    label.resize(800, 20);
    SetFittingText(label, kLong);
    EXPECT_EQ(label.text(), kLongText);
    EXPECT_EQ(label.toolTip(), QString());
}

TEST(Texts, AreNeverRichInAToolTip)
{
    QWidget widget;
    SetToolTip(widget, Words::AsIs("Rain & sun"));
    EXPECT_EQ(widget.toolTip(), QStringLiteral("Rain & sun"));
    SetToolTip(widget, kRich);
    EXPECT_EQ(widget.toolTip(), QStringLiteral("<p>&lt;b&gt;Rain&lt;/b&gt; &amp; 3 &lt; 4</p>"));
    SetToolTip(widget, {});
    EXPECT_EQ(widget.toolTip(), QString());
    SetLongToolTip(widget, Words::AsIs("Rain & sun"));
    EXPECT_EQ(widget.toolTip(), QStringLiteral("<p>Rain &amp; sun</p>"));
}

TEST(Texts, GoToMenusAndLists)
{
    QMenu menu;
    EXPECT_EQ(AddItem(menu, Words::Text("Move Up"))->text(), QStringLiteral("Move Up"));
    QListWidget list;
    QListWidgetItem* const line = AddLine(list, kRich);
    SetLongToolTip(*line, kRich);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("<b>Rain</b> & 3 < 4"));
    EXPECT_EQ(line->toolTip(), QStringLiteral("<p>&lt;b&gt;Rain&lt;/b&gt; &amp; 3 &lt; 4</p>"));
}

TEST(Texts, GoToBoxes)
{
    QComboBox box;
    AddItem(box, Words::Text("%1 Steps", 8), 8);
    InsertItem(box, 0, Words::Text("%1 Steps", 5), 5);
    EXPECT_EQ(box.itemText(0), QStringLiteral("5 Steps"));
    EXPECT_EQ(box.itemData(1), QVariant(8));
    QLineEdit line;
    SetContent(line, "Zürich");
    EXPECT_EQ(line.text(), QStringLiteral("Zürich"));
}

TEST(Texts, AreCutInABoxAndSpokenWhole)
{
    QComboBox box;
    AddCutItem(box, Words::AsIs(" The  microphone of the <b>desk</b> "), 60);
    EXPECT_TRUE(box.itemText(0).endsWith(QChar(0x2026))) << qPrintable(box.itemText(0));
    EXPECT_EQ(box.itemData(0, Qt::AccessibleTextRole), QStringLiteral("The microphone of the <b>desk</b>"));
    EXPECT_EQ(box.itemData(0, Qt::ToolTipRole), QStringLiteral("<p>The microphone of the &lt;b&gt;desk&lt;/b&gt;</p>"));
}

} // namespace
} // namespace sprout
