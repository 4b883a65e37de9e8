// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QApplication>
#include <QTranslator>

#include "app/ProgramWindows.h"
#include "support/KnownTexts.h"
#include "ui/look/Look.h"

namespace {

/// Checks every text that a test shows; translates none.
class ListedTexts : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*comment*/, int /*number*/) const override
    {
        if (*context != 'Q') // Qt's own
            sprout::KnownTexts::OfProgram().Expect(context, text);
        return {};
    }
};

} // namespace

int main(int argc, char** argv)
{
    // Test discovery runs without CTest's environment, so the platform is chosen here.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    ListedTexts texts;
    QApplication::installTranslator(&texts);
    sprout::ApplyLook(application);
    sprout::ProgramWindows windows;
    const sprout::ProvidedWindows provided(windows);
    return RUN_ALL_TESTS();
}
