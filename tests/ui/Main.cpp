// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QApplication>

#include "app/ProgramWindows.h"
#include "ui/Look.h"

int main(int argc, char** argv)
{
    // Test discovery runs without CTest's environment, so the platform is chosen here.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    sprout::ProgramWindows windows;
    const sprout::ProvidedWindows provided(windows);
    return RUN_ALL_TESTS();
}
