// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/NamesMenu.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>

namespace sprout {
namespace {

using testing::ElementsAre;

class NamesMenuTest : public testing::Test {
protected:
    NamesMenuTest() { window.show(); }

    /// Opens the menu, and runs `steps` before it closes.
    std::optional<std::size_t> Choose(const std::vector<std::string>& names, const std::function<void()>& steps = {})
    {
        QTimer::singleShot(0, &menu, [this, &steps] {
            if (steps)
                steps();
            menu.close();
        });
        return menu.Choose(names, QPoint(30, 40));
    }
    void Pick(int entry)
    {
        menu.setActiveAction(menu.actions().at(entry));
        QTest::keyClick(&menu, Qt::Key_Return);
    }

    QWidget window;
    NamesMenu menu{"TestMenu", "Entry", &window};
};

TEST_F(NamesMenuTest, ReturnsThePlaceOfTheChosenName)
{
    EXPECT_EQ(Choose({"A", "B", "B"}, [this] { Pick(2); }), 2U);
    EXPECT_EQ(Choose({"A", "B"}, [this] { Pick(0); }), 0U);
}

TEST_F(NamesMenuTest, ReturnsNothingWhenItIsLeft)
{
    EXPECT_EQ(Choose({"A", "B"}), std::nullopt);
    EXPECT_EQ(Choose({"A", "B"}, [this] { QTest::keyClick(&menu, Qt::Key_Escape); }), std::nullopt);
}

TEST_F(NamesMenuTest, ShowsTheNamesAsTheyAre)
{
    std::vector<std::string> texts;
    std::vector<std::string> objects;
    const auto look = [&] {
        for (const QAction* const entry : menu.actions()) {
            texts.push_back(entry->text().toStdString());
            objects.push_back(entry->objectName().toStdString());
        }
        EXPECT_EQ(menu.pos(), QPoint(30, 40));
    };
    static_cast<void>(Choose({"Old"}));
    static_cast<void>(Choose({"Rock & roll", "Take\ttwo"}, look));
    EXPECT_THAT(texts, ElementsAre("Rock && roll", "Take two"));
    EXPECT_THAT(objects, ElementsAre("Entry1", "Entry2"));
    EXPECT_EQ(menu.objectName(), QStringLiteral("TestMenu"));
}

} // namespace
} // namespace sprout
