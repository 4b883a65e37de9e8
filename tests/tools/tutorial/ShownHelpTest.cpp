// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpFrm.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QListWidget>
#include <QTextBlock>

#include "core/Shared.h"
#include "ui/help/HelpBook.h"

namespace sprout {
namespace {

/// The help with the pictures that the build has made.
class ShownHelpTest : public testing::Test {
protected:
    ShownHelpTest()
    {
        Shared().InstallRoot = SPROUT_INSTALLED;
        help.show();
        help.setAttribute(Qt::WA_DeleteOnClose, false);
        QApplication::processEvents();
    }
    ~ShownHelpTest() override { Shared().InstallRoot.clear(); }

    /// The name of the picture of a window in a block, if there is one.
    static QString WindowIn(const QTextBlock& block)
    {
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (const QString name = part.fragment().charFormat().toImageFormat().name(); name.startsWith(u"window:"))
                return name;
        return {};
    }

    HelpFrm help;
    QListWidget& pages = *help.findChild<QListWidget*>(QStringLiteral("PagesLst"));
    HelpBook& book = *help.findChild<HelpBook*>(QStringLiteral("BookTxt"));
};

TEST_F(ShownHelpTest, HasRoomForEachTopicWithAPicture)
{
    int pictures = 0;
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentRow(page);
        const QTextDocument& text = *book.document();
        qreal top = 0;
        bool hasPicture = false;
        const auto endTopic = [&](qreal end) {
            if (hasPicture) {
                EXPECT_LE(end - top, book.viewport()->height()) << book.source().path().toStdString();
            }
            hasPicture = false;
            top = end;
        };
        for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
            if (block.blockFormat().headingLevel() > 0)
                endTopic(text.documentLayout()->blockBoundingRect(block).top());
            if (!WindowIn(block).isEmpty()) {
                hasPicture = true;
                ++pictures;
            }
        }
        endTopic(text.size().height());
    }
    EXPECT_GE(pictures, 11);
}

TEST_F(ShownHelpTest, ShowsItsPicturesWholeAndSharp)
{
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentRow(page);
        for (QTextBlock block = book.document()->begin(); block.isValid(); block = block.next()) {
            const QString name = WindowIn(block);
            if (name.isEmpty())
                continue;
            const auto picture = book.loadResource(QTextDocument::ImageResource, QUrl(name)).value<QPixmap>();
            EXPECT_GT(picture.deviceIndependentSize().width(), 150) << name.toStdString();
            EXPECT_LE(picture.deviceIndependentSize().width(), book.viewport()->width() - 24) << name.toStdString();
            EXPECT_EQ(picture.devicePixelRatio(), book.devicePixelRatioF());
            EXPECT_FALSE(book.accessibleDescription().isEmpty()) << name.toStdString();
        }
    }
}

} // namespace
} // namespace sprout
