// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/LaterCommands.h"

#include <gtest/gtest.h>

#include "ui/ModalSteps.h"

namespace sprout {
namespace {

QString FirstNoteOf(const char* button)
{
    QString note;
    WithNextForm([&note](BandedForm& form) {
        note = form.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text();
        Click(form, "OkBtn");
    });
    ShowLaterCommand(button);
    return note;
}

TEST(ShowLaterCommand, TellsWhatEachButtonCannotDoYet)
{
    EXPECT_EQ(FirstNoteOf("DemoBtn"), QStringLiteral("There is no demo to watch yet."));
}

TEST(ShowLaterCommand, KeepsSilentForOtherButtons)
{
    ShowLaterCommand("PlayAllBtn"); // a message would wait for its OK
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace sprout
