// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWindow>

#include <string>

#include "ui/ModalSteps.h"
#include "ui/help/HelpBook.h"
#include "ui/help/HelpFrm.h"
#include "ui/help/OpenedHelp.h"

namespace sprout {

/// Clicks like the user: through the window, which a modal one may block.
inline void ClickThroughWindow(QWidget& widget, QPoint point)
{
    QWidget* top = widget.window();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, widget.mapTo(top, point));
}

class HelpFrmTest : public testing::Test {
protected:
    ~HelpFrmTest() override { delete OpenedHelp(); }

    static HelpFrm& Open()
    {
        ShowHelp();
        QApplication::processEvents();
        return *OpenedHelp();
    }

    static QListWidget& Pages(HelpFrm& help) { return *help.findChild<QListWidget*>(QStringLiteral("PagesLst")); }
    static HelpBook& Book(HelpFrm& help) { return *help.findChild<HelpBook*>(QStringLiteral("BookTxt")); }

    static QString Shown(HelpFrm& help) { return Book(help).document()->metaInformation(QTextDocument::DocumentTitle); }
    static QString Marked(HelpFrm& help) { return Pages(help).currentItem()->text(); }

    static QLineEdit& Box(HelpFrm& help) { return *help.findChild<QLineEdit*>(QStringLiteral("SearchTxt")); }
    static std::string Found(HelpFrm& help)
    {
        return help.findChild<QLabel*>(QStringLiteral("FoundLbl"))->text().toStdString();
    }
    /// The words that are marked in the page; empty if none are.
    static std::string MarkedWord(HelpFrm& help)
    {
        const auto marks = Book(help).extraSelections();
        return marks.isEmpty() ? "" : marks.front().cursor.selectedText().toStdString();
    }

    static void ClickPage(HelpFrm& help, int row)
    {
        QListWidget& pages = Pages(help);
        pages.scrollToItem(pages.item(row));
        ClickThroughWindow(*pages.viewport(), pages.visualItemRect(pages.item(row)).center());
    }
};

} // namespace sprout
