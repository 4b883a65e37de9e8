// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepPopMenu.h"

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using StepPopMnuTest = StepEditorTest;

/// Runs `steps` with the menu that opens next, and then closes it.
void WithStepMenu(const QWidget& editor, const std::function<void(QMenu&)>& steps)
{
    QTimer::singleShot(0, &editor, [&editor, steps] {
        auto& menu = *editor.findChild<QMenu*>(QStringLiteral("StepPopMnu"));
        steps(menu);
        menu.close();
    });
}

/// Picks an item like a click.
void Pick(QMenu& menu, const char* caption)
{
    for (QAction* const action : menu.actions())
        if (action->text() == QString::fromLatin1(caption)) {
            menu.setActiveAction(action);
            QTest::keyClick(&menu, Qt::Key_Return);
        }
}

TEST_F(StepPopMnuTest, OpensForTheRightButtonOnALamp)
{
    int opened = 0;
    std::string enabled;
    const auto look = [&](QMenu& menu) {
        ++opened;
        enabled.clear();
        for (const QAction* const action : menu.actions())
            enabled += action->isSeparator() ? '|' : action->isEnabled() ? 'y' : 'n';
    };
    WithStepMenu(editor, look);
    ClickAt(In(1, 30), Qt::RightButton);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(enabled, "yy|yy|yy");
    WithStepMenu(editor, look);
    ClickAt(In(3, 30), Qt::RightButton);
    EXPECT_EQ(enabled, "yy|nn|yy") << "an off-step cannot be moved alone";
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
}

TEST_F(StepPopMnuTest, CarriesOutWhatIsPicked)
{
    WithStepMenu(editor, [](QMenu& menu) { Pick(menu, "Move Step to right"); });
    ClickAt(In(2, 30), Qt::RightButton);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_EQ(tune.Steps[3].StepBeat.Name, "B2");
    EXPECT_TRUE(tune.Steps[3].StepWaveValid);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(edits, 1);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(StepPopMnuTest, TellsWhyAMoveIsRefused)
{
    std::string words;
    WithStepMenu(editor, [&words](QMenu& menu) {
        WithNextForm([&words](BandedForm& form) {
            for (const QLabel* const label : form.findChildren<QLabel*>())
                words += label->text().toStdString() + "|";
            Click(form, "OkBtn");
        });
        Pick(menu, "Move Step to right");
    });
    ClickAt(In(1, 30), Qt::RightButton);
    EXPECT_NE(words.find("Next step is ON,|Can not move this."), std::string::npos) << words;
    EXPECT_EQ(edits, 0);
}

TEST_F(StepPopMnuTest, ReturnsNothingWhenItIsLeft)
{
    StepPopMenu menu(&window);
    QTimer::singleShot(0, &menu, [&menu] { menu.close(); });
    EXPECT_EQ(menu.Choose(tune.Steps[1], QPoint(5, 5)), std::nullopt);
    QTimer::singleShot(0, &menu, [&menu] { Pick(menu, "Delete Step"); });
    EXPECT_EQ(menu.Choose(tune.Steps[1], QPoint(5, 5)), StepMoveMnu::DeleteStep);
}

} // namespace
} // namespace sprout
