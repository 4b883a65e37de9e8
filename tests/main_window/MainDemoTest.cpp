// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QMenu>

#include "main_window/MainWindowTest.h"

namespace sprout {
namespace {

using testing::ElementsAre;

/// The main window with two installed demos.
class MainDemoTest : public MainWindowTest {
protected:
    MainDemoTest()
    {
        Shared().DemoImages = fake.folder.Path() / "DemoImages" / "";
        std::filesystem::create_directory(Shared().DemoImages);
        WriteBytes(Shared().DemoImages / "one.bmp", "a picture");
        WriteBytes(Shared().DemoImages / "TqDemoImages.ini",
                   "[Section]\r\nSectionCount=2\r\nSection1=Hear a song\r\nSection2=Paint\r\n"
                   "ImageCount2=2\r\nImage21=one.bmp,0,0,32,32,click,0\r\nImage22=one.bmp,0,0,32,32,click,0\r\n");
    }

    /// Clicks the button and picks an entry of its menu.
    void PickDemo(int entry)
    {
        QTimer::singleShot(0, window.get(), [this, entry] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            WithNextForm([this](BandedForm& form) { Watch(form); });
            menu->setActiveAction(menu->actions().at(entry));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        ClickButton("DemoBtn");
    }

    void Watch(BandedForm& form)
    {
        seen.push_back(form.objectName().toStdString() + form.windowTitle().toStdString());
        auto& picture = *form.findChild<QWidget*>(QStringLiteral("DemoImages"));
        for (int slide = 0; slide < 2; ++slide) {
            seen.push_back(picture.accessibleName().toStdString());
            QTest::mouseClick(&picture, Qt::LeftButton, {}, QPoint(5, 5));
        }
        Click(form, "CloseImgBtn");
    }

    std::vector<std::string> seen;
};

TEST_F(MainDemoTest, ShowsADemoFromItsButton)
{
    ShowHint(Words::AsIs("A hint"));
    PickDemo(1);
    EXPECT_THAT(seen, ElementsAre("Demo_frmDemo: Paint", "Press Space to click. Picture 1 of 2",
                                  "Press Space to click. Picture 2 of 2"));
    EXPECT_EQ(TextOf("StatusLbl"), "");
    EXPECT_FALSE(PlayShared().DemoPlaying);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace sprout
