// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/QtTip.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace sprout {
namespace {

TEST(QtTip, LeavesAPlainNameAsItIs)
{
    EXPECT_EQ(QtTip("Zumi & <3"), QStringLiteral("Zumi & <3"));
    EXPECT_EQ(QtTip(""), QString());
}

TEST(QtTip, ShowsANameThatLooksLikeRichTextLetterByLetter)
{
    const QString name = QStringLiteral("<img src=\"/etc/picture.png\"> & more");
    QTextDocument shown;
    shown.setHtml(QtTip(name.toStdString()));
    EXPECT_EQ(shown.toPlainText(), name);
}

} // namespace
} // namespace sprout
