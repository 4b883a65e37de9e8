// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_choose_bench SPROUT_FOLDER: measures the milliseconds to open, scroll and use the tune window and the beat
// window, in folders with copies of the installed tunes and beats. Sound goes to SDL's dummy device.
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "beat_window/BeatWindow.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "service/PlayDisplay.h"
#include "service/Services.h"
#include "service/posix/LargePages.h"
#include "service/posix/PosixFiles.h"
#include "service/posix/PosixMachine.h"
#include "service/qt/QtPictureFiles.h"
#include "service/sdl/SdlSoundOutput.h"
#include "sound/PlayMod.h"
#include "sound/StepCache.h"
#include "stretch/StretchService.h"
#include "tune_window/OpenTuneWindow.h"
#include "tune_window/TunFramPic.h"
#include "tune_window/TuneFrm2.h"
#include "tune_window/rules/StepLayout.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/Look.h"
#include "ui/look/ProgramPictures.h"
#include "ui/widgets/PictureGridPic.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr int kOpenings = 5;
constexpr int kTunesTried = 18; // a row of the grid
constexpr int kLampY = 30;

double Milliseconds(const std::function<void()>& work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// The program's memory in MB.
double ResidentMegabytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

void Print(const std::string& name, std::vector<double> measured, const char* unit, double limit, const char* what)
{
    std::sort(measured.begin(), measured.end());
    std::printf("%-22s %8.1f %s %8.0f %s   %s; at most %.1f\n", name.c_str(), measured[measured.size() / 2], unit,
                limit, unit, what, measured.back());
    std::fflush(stdout);
}

/// Copies the files of `from` with these endings under different names, as often as needed to get `count` of each.
void CopyMany(const fs::path& from, const fs::path& to, const std::vector<std::string>& endings, int count)
{
    fs::remove_all(to);
    fs::create_directories(to);
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(from))
        if (entry.path().extension() == endings.front())
            files.push_back(entry.path());
    for (int i = 0; i < count; ++i) {
        const fs::path& file = files[static_cast<std::size_t>(i) % files.size()];
        for (const std::string& ending : endings)
            fs::copy_file(fs::path(file).replace_extension(ending),
                          to / (std::to_string(i) + " " + file.stem().string() + ending));
    }
}

void Press(QWidget& surface, QPoint at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, surface.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&surface, &event);
    }
}

std::vector<double> ScrollTimes(PictureGridPic& grid)
{
    std::vector<double> times{0};
    for (int row = 1; row <= std::min(grid.VScroll1().maximum(), 100); ++row)
        times.push_back(Milliseconds([&grid, row] {
            grid.VScroll1().setValue(row);
            grid.repaint();
        }));
    grid.VScroll1().setValue(1);
    return times;
}

/// Measures while the tune window is open.
struct TuneWindowTimes {
    std::vector<double> open, memory, scroll, choose, lamp, key;
};

/// Presses a tune of the grid, which scrolls there.
double PressTune(PictureGridPic& grid, int index)
{
    grid.VScroll1().setValue((index - 1) / kTunesTried + 1);
    QApplication::processEvents();
    const GridPlace place = PlaceInGrid(grid.Grid(), index);
    return Milliseconds([&] { Press(grid, {place.x + 4, place.y + 4}); });
}

void UseTuneWindow(TuneFrm2& window, TuneWindowTimes& times)
{
    auto& grid = *window.findChild<PictureGridPic*>();
    auto& steps = *window.findChild<TunFramPic*>();
    const std::vector<double> scrolled = ScrollTimes(grid);
    times.scroll.insert(times.scroll.end(), scrolled.begin(), scrolled.end());
    const bool haveSound = !times.lamp.empty(); // from the first opening on
    for (int index = 2; index <= std::min(kTunesTried, grid.Count()); ++index) {
        const double time = PressTune(grid, index);
        if (haveSound)
            times.choose.push_back(time);
        QApplication::processEvents();
    }
    times.lamp.push_back(Milliseconds([&] { Press(steps, {kStepsLeftAtStart + 2 * kStepPitch + 10, kLampY}); }));
    TuneStep& first = At(Shared().CurrentTune.Steps, 1);
    first.SetOn(true);
    window.UpdateThisTune();
    TheStepCache().Clear();
    first.PitchShift = first.PitchShift == 4 ? 5 : 4;
    SongChanges::StepChanged(Shared().CurrentTune, 1);
    constexpr QPoint lowestKey(kStepsLeftAtStart + 24, 210);
    times.key.push_back(Milliseconds([&] { Press(steps, lowestKey); }));
}

/// Opens the tune window, draws it, uses it and closes it.
void WithTuneWindow(const std::function<void(TuneFrm2&)>& use)
{
    QTimer::singleShot(0, qApp, [&use] {
        auto& window = *qobject_cast<TuneFrm2*>(QApplication::activeModalWidget());
        QApplication::processEvents();
        window.repaint();
        use(window);
        window.reject();
    });
    Tune tune;
    bool newFlag = false;
    if (OpenTuneWindow(tune, newFlag))
        Player().StopPlay();
}

void OpenTuneWindowOnce(TuneWindowTimes& times)
{
    const double before = ResidentMegabytes();
    QElapsedTimer clock;
    clock.start();
    WithTuneWindow([&](TuneFrm2& window) {
        times.open.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        times.memory.push_back(ResidentMegabytes() - before);
        UseTuneWindow(window, times);
    });
}

/// Notes when a file begins to be written.
class TimedFiles : public PosixFiles {
public:
    void ReplaceFile(const fs::path& target, std::span<const std::span<const std::byte>> pieces, Flush flush) override
    {
        writeBegan.start();
        PosixFiles::ReplaceFile(target, pieces, flush);
    }

    QElapsedTimer writeBegan;
};

/// Each tune of the library is pressed for the first time: it is read, rendered, played and shown, and then its sound
/// is kept. The first tune is there twice, because the window begins with it.
void MeasureFirstPresses(const fs::path& installed, const fs::path& scratch)
{
    const auto entries = fs::directory_iterator(installed / "Tunes");
    const auto count = std::count_if(begin(entries), end(entries),
                                     [](const auto& entry) { return entry.path().extension() == ".TqTun"; });
    CopyMany(installed / "Tunes", scratch / "Tunes", {".TqTun"}, static_cast<int>(count) + 1);
    Shared().TuneTableCount = 0;
    TimedFiles files;
    Files* const before = std::exchange(TheServices().files, &files);
    std::vector<double> shown, kept;
    std::string slowest;
    WithTuneWindow([&](TuneFrm2& window) {
        auto& grid = *window.findChild<PictureGridPic*>();
        for (int index = 2; index <= grid.Count(); ++index) {
            const double whole = PressTune(grid, index);
            kept.push_back(static_cast<double>(files.writeBegan.nsecsElapsed()) / 1e6);
            shown.push_back(whole - kept.back());
            if (shown.back() == *std::max_element(shown.begin(), shown.end()))
                slowest = Shared().CurrentTune.Name;
        }
    });
    TheServices().files = before;
    const std::string until =
        "from the first press on a tune of the library until it plays and is drawn; " + slowest + " takes longest";
    Print("first press", shown, "ms", 100, until.c_str());
    Print("first press, kept", kept, "ms", 750, "from there until its sound is in its file");
}

void MeasureTunes(const fs::path& installed, const fs::path& scratch, int count)
{
    CopyMany(installed / "Tunes", scratch / "Tunes", {".TqTun"}, count);
    Shared().TuneTableCount = 0;
    const std::string name = std::to_string(count) + " tunes, ";
    Print(name + "table", {Milliseconds(LoadTuneFiles)}, "ms", 2000, "the table read at the start");
    TuneWindowTimes times;
    for (int i = 0; i < kOpenings; ++i)
        OpenTuneWindowOnce(times);
    Print(name + "open", times.open, "ms", 150, "the window opened and drawn");
    Print(name + "memory", {times.memory.front()}, "MB", 60, "more than before the first opening");
    Print(name + "scroll", times.scroll, "ms", 16, "the grid scrolled by a row and drawn");
    Print(name + "choose", times.choose, "ms", 60, "from the press on a tune with stored sound until it plays");
    Print(name + "lamp", times.lamp, "ms", 60, "from the press on a lamp until the tune plays");
    Print(name + "key", times.key, "ms", 150, "from the press on a key until the step, rendered anew, plays");
}

void MeasureBeats(const fs::path& installed, const fs::path& scratch, int count)
{
    CopyMany(installed / "Beats", scratch / "Beats", {".wav", ".bmp"}, count);
    const std::string name = std::to_string(count) + " beats, ";
    std::vector<double> open, scroll;
    const double before = ResidentMegabytes();
    double memory = 0;
    for (int i = 0; i < kOpenings; ++i) {
        BeatWindow window(nullptr);
        open.push_back(Milliseconds([&window] {
            window.LoadBeatFiles();
            window.show();
            QApplication::processEvents();
            window.repaint();
        }));
        if (i == 0)
            memory = ResidentMegabytes() - before;
        const std::vector<double> times = ScrollTimes(*window.findChild<PictureGridPic*>());
        scroll.insert(scroll.end(), times.begin(), times.end());
    }
    Print(name + "open", open, "ms", count > 300 ? 2000 : 150, "the list read, the window opened and drawn");
    Print(name + "memory", {memory}, "MB", 60, "more than before the first opening");
    Print(name + "scroll", scroll, "ms", 16, "the grid scrolled by a row and drawn");
}

class TuneWindowDisplay : public PlayDisplay {
public:
    [[nodiscard]] std::int32_t MainWindowHandle() const override { return 1; }
    void ShowSoundStatus(const Words& /*text*/) override {}
    void EnablePlayPosTimer() override {}
    void UpdateThisTune() override { sprout::UpdateThisTune(); }
};

void MeasureAll(const fs::path& installed)
{
    QtMessages messages;
    QtScreen screen;
    PosixFiles files;
    PosixMachine machine;
    QtPictureFiles pictures;
    SdlSoundOutput sound;
    TuneWindowDisplay display;
    const auto stretch = MakeStretch();
    LargePages::UseFromNowOn();
    TheServices() = {.messages = &messages,
                     .screen = &screen,
                     .files = &files,
                     .machine = &machine,
                     .pictures = &pictures,
                     .stretch = stretch.get(),
                     .sound = &sound,
                     .playDisplay = &display};
    MakeProgramPictures();
    std::string scratch = (fs::temp_directory_path() / "sprout-choose-XXXXXX").string();
    if (!mkdtemp(scratch.data()))
        return;
    SetUserRoot(scratch);
    fs::copy(installed / "Beats", Shared().UserBeats); // for the tunes
    SetSoundDriver(true);
    QWidget mainWindow;
    mainWindow.resize(800, 600);
    mainWindow.show();
    MeasureFirstPresses(installed, scratch);
    for (const int count : {200, 5000})
        MeasureTunes(installed, scratch, count);
    for (const int count : {300, 5000})
        MeasureBeats(installed, scratch, count);
    ReleasePlayer();
    fs::remove_all(scratch);
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: sprout_choose_bench SPROUT_FOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "dummy");
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    sprout::MeasureAll(argv[1]);
    return 0;
}
