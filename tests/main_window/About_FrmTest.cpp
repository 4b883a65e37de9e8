// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/About_Frm.h"

#include <gmock/gmock.h>

#include <QPushButton>

#include "base/Product.h"
#include "core/Shared.h"
#include "support/FakeServices.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class AboutFrmTest : public testing::Test {
protected:
    AboutFrmTest() { form.show(); }

    std::string TextOf(const char* name)
    {
        return form.findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
    }

    FakeServices services;
    About_Frm form{nullptr};
};

TEST_F(AboutFrmTest, TellsTheProductItsDateAndItsLicence)
{
    EXPECT_EQ(TextOf("CaptionLbl"), " About");
    EXPECT_EQ(TextOf("ProductLbl"), kProductName);
    EXPECT_THAT(TextOf("VersionLbl"), HasSubstr(std::string(kAppVersionDate)));
    EXPECT_THAT(TextOf("LicenceLbl"), HasSubstr("GPL-3.0-or-later"));
}

TEST_F(AboutFrmTest, TheLinkOpensTheMakersPages)
{
    auto* link = form.findChild<QPushButton*>(QStringLiteral("WebSiteLbl"));
    EXPECT_EQ(link->text().toStdString(), kWebSite);
    Click(form, "WebSiteLbl");
    EXPECT_THAT(services.desktop.opened, ElementsAre("https://tonquill.example/"));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(AboutFrmTest, TellsWhatTheLinkDoesAndNothingBesideIt)
{
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    QTest::mouseMove(form.findChild<QWidget*>(QStringLiteral("WebSiteLbl")), QPoint(5, 5));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Click to see the makers' pages"));
    for (const char* name : {"ProductLbl", "VersionLbl", "LicenceLbl", "OkBtn"}) {
        statusLbl.setText(QStringLiteral("before"));
        QTest::mouseMove(form.findChild<QWidget*>(QString::fromLatin1(name)), QPoint(6, 6));
        EXPECT_EQ(statusLbl.text(), QString()) << name;
    }
}

TEST_F(AboutFrmTest, TheLinkIsReachedAndOpenedWithKeys)
{
    QApplication::setActiveWindow(&form);
    auto* link = form.findChild<QPushButton*>(QStringLiteral("WebSiteLbl"));
    QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(link->hasFocus());
    QTest::keyClick(link, Qt::Key_Return);
    RepeatKey(*link, Qt::Key_Return);
    EXPECT_EQ(services.desktop.opened.size(), 1U);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(link, Qt::Key_Space);
    EXPECT_EQ(services.desktop.opened.size(), 2U);
}

TEST_F(AboutFrmTest, OkAndEscapeCloseIt)
{
    Click(form, "OkBtn");
    EXPECT_FALSE(form.isVisible());
    form.show();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(services.desktop.opened.empty());
}

TEST_F(AboutFrmTest, EveryLineStandsInsideTheForm)
{
    for (const QWidget* line : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(form.rect().contains(line->geometry())) << line->objectName().toStdString();
}

} // namespace
} // namespace sprout
