// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "app/ProgramWindows.h"
#include "ui/look/Look.h"

namespace {

/// Chooses the screen by SPROUT_TEST_SCREEN, such as "1280 800 2" for its size and its scale; without it, that of the
/// slides.
void ChooseScreen(const QString& folder)
{
    const QStringList numbers = qEnvironmentVariable("SPROUT_TEST_SCREEN", QStringLiteral("780 540 1")).split(u' ');
    const QString path = folder + QStringLiteral("/screen.json");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QStringLiteral(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens":
        [{"name": "test", "x": 0, "y": 0, "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3}]})")
                   .arg(numbers[0], numbers[1], numbers[2])
                   .toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    ChooseScreen(folder.path());
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    sprout::ApplyLook(application);
    return RUN_ALL_TESTS();
}
