// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_slide_bench SPROUT_FOLDER SCALE: measures the milliseconds from what a slide of the tutorial waits for, a
// click or a key, to the painted picture of the next one, for all slides of all demos on a screen with this scale.
// Sound goes to SDL's dummy device.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "core/Shared.h"
#include "demo/DemoFolder.h"
#include "demo/DemoPic.h"
#include "demo/Demo_frm.h"
#include "demo/rules/DemoFile.h"
#include "demo/rules/DemoPlaces.h"
#include "service/PlayDisplay.h"
#include "service/Services.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixMachine.h"
#include "service/qt/QtPictureFiles.h"
#include "service/sdl/SdlSoundOutput.h"
#include "sound/PlayMod.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/Look.h"
#include "ui/widgets/PutAt.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr double kMostMilliseconds = 50;

class SilentDisplay : public PlayDisplay {
public:
    [[nodiscard]] std::int32_t MainWindowHandle() const override { return 1; }
    void ShowSoundStatus(const Words& /*text*/) override {}
    void EnablePlayPosTimer() override {}
    void UpdateThisTune() override {}
};

void Click(QWidget& picture, QPoint at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, picture.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&picture, &event);
    }
}

void PressKey(QWidget& window, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
}

/// Does what the slide waits for; steps over one that waits for its time.
void Leave(Demo_frm& form, const DemoSlide& slide)
{
    auto& picture = *form.findChild<DemoPic*>();
    if (slide.Action != DemoAction::Click)
        return PressKey(form, slide.Action == DemoAction::Drag ? Qt::Key_Space : Qt::Key_Right);
    const Box place = ShownRectangle(slide.Rectangle, picture.PictureSize(), SizeOf(picture));
    Click(picture, {place.left + place.width / 2, place.top + place.height / 2});
}

/// Waits as a child does who looks at a slide before the next click.
void LookAt(const Demo_frm& form)
{
    const auto* const ahead = form.findChild<QTimer*>(QStringLiteral("DemoAheadTimer"));
    while (ahead->isActive())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
}

void MeasureDemo(const DemoName& demo, std::vector<double>& times)
{
    const std::vector<DemoSlide> slides = ReadDemoSlides(ReadDemoFile(), ReadDemoTexts(), demo.Number);
    Demo_frm form(nullptr, demo.Name);
    form.show();
    LookAt(form);
    for (std::size_t i = 0; i + 1 < slides.size(); ++i) {
        QElapsedTimer clock;
        clock.start();
        Leave(form, slides[i]);
        form.repaint();
        times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        LookAt(form);
    }
    Player().StopPlay();
}

void MeasureAll(const fs::path& installed, const char* scale)
{
    QtMessages messages;
    QtScreen screen;
    PosixFiles files;
    PosixMachine machine;
    QtPictureFiles pictures;
    SdlSoundOutput sound;
    SilentDisplay display;
    TheServices() = {.messages = &messages,
                     .screen = &screen,
                     .files = &files,
                     .machine = &machine,
                     .pictures = &pictures,
                     .sound = &sound,
                     .playDisplay = &display};
    SetSoundDriver(true);
    Shared().DemoImages = installed / "DemoImages" / "";
    std::vector<double> times;
    for (const DemoName& demo : ReadDemoNames(ReadDemoFile()))
        MeasureDemo(demo, times);
    ReleasePlayer();
    if (times.empty())
        return;
    std::sort(times.begin(), times.end());
    std::printf(
        "slides at %s00 %%      %8.1f ms %8.0f ms   from the click to the painted slide; at most %.1f, of %zu\n", scale,
        times[times.size() / 2], kMostMilliseconds, times.back(), times.size());
}

/// A screen on which the slides are shown at their own size.
QByteArray ScreenOf(const char* scale, const QString& folder)
{
    const QString path = folder + QStringLiteral("/screen.json");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens":
            [{"name": "bench", "x": 0, "y": 0, "width": 1280, "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96,
            "dpr": )") +
                   scale + "}]}");
    return "offscreen:configfile=" + path.toUtf8();
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: sprout_slide_bench SPROUT_FOLDER SCALE\n", stderr);
        return 2;
    }
    const QTemporaryDir folder;
    qputenv("QT_QPA_PLATFORM", sprout::ScreenOf(argv[2], folder.path()));
    qputenv("SDL_AUDIODRIVER", "dummy");
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    sprout::MeasureAll(argv[1], argv[2]);
    return 0;
}
