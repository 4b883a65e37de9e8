// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpPages.h"

#include <QWidget>

#include <algorithm>
#include <array>
#include <string_view>

namespace sprout {

namespace {

constexpr std::array kHelpPages{
    HelpPage{"welcome", Words::Later("Welcome"), "pictures/Sprout"},
    HelpPage{"window", Words::Later("The big window"), "buttons/AboutBtn"},
    HelpPage{"painting", Words::Later("Painting"), "buttons/BrushBtn"},
    HelpPage{"playing", Words::Later("Playing"), "buttons/PlayAllBtn"},
    HelpPage{"tracks", Words::Later("Tracks"), "buttons/TrackAddBtn"},
    HelpPage{"tunes", Words::Later("Choosing a tune"), "buttons/NewTuneBtn"},
    HelpPage{"steps", Words::Later("Changing a tune"), "buttons/RndTuneBtn"},
    HelpPage{"beats", Words::Later("Instruments"), "buttons/ChangePicBtn"},
    HelpPage{"recording", Words::Later("Recording"), "buttons/TrackAddRecBtn"},
    HelpPage{"editor", Words::Later("Changing a sound"), "buttons/TrackAudioBtn"},
    HelpPage{"songs", Words::Later("Your songs"), "buttons/SaveBtn"},
    HelpPage{"sharing", Words::Later("Taking songs home"), "buttons/EmailBtn"},
    HelpPage{"demo", Words::Later("Demos"), "buttons/DemoBtn"},
    HelpPage{"messages", Words::Later("Messages"), "pictures/Exclamation"},
    HelpPage{"questions", Words::Later("What is wrong?"), "buttons/HelpBtn"},
    HelpPage{"keys", Words::Later("Keys"), "pictures/HelpKeys"},
    HelpPage{"book", Words::Later("This help"), "buttons/ZoomInBtn"},
    HelpPage{"teachers", Words::Later("For teachers"), "buttons/SongTitleChgBtn"},
};

constexpr std::array kHelpOfWindows{
    HelpOfWindow{"MainFrm", "window"},
    HelpOfWindow{"About_Frm", "window"},
    HelpOfWindow{"TuneFrm2", "tunes"},
    HelpOfWindow{"TunFramPic", "steps"},
    HelpOfWindow{"TuneNameFrm", "tunes"},
    HelpOfWindow{"BeatWindow", "beats"},
    HelpOfWindow{"Msg3BtnFrm", "recording"},
    HelpOfWindow{"Recd_Frm", "recording"},
    HelpOfWindow{"AudioEditFrm", "editor"},
    HelpOfWindow{"SongSelFrm", "songs"},
    HelpOfWindow{"SongTitleFrm", "songs"},
    HelpOfWindow{"WorkFrm", "sharing"},
    HelpOfWindow{"Demo_frm", "demo"},
    HelpOfWindow{"Msg1BtnFrm", "messages"},
    HelpOfWindow{"Msg1Btn2NoteFrm", "messages"},
    HelpOfWindow{"MsgYesNoFrm", "messages"},
    HelpOfWindow{"SaveConfirmFrm", "messages"},
    HelpOfWindow{"PlainBoxFrm", "messages"},
    HelpOfWindow{"InputBoxFrm", "messages"},
    HelpOfWindow{"HelpFrm", "book"},
};

int NumberOf(std::string_view file)
{
    const auto* page = std::find_if(kHelpPages.begin(), kHelpPages.end(),
                                    [file](const HelpPage& candidate) { return candidate.file == file; });
    return page == kHelpPages.end() ? -1 : static_cast<int>(page - kHelpPages.begin());
}

} // namespace

std::span<const HelpPage> HelpPages()
{
    return kHelpPages;
}

std::span<const HelpOfWindow> HelpOfWindows()
{
    return kHelpOfWindows;
}

QUrl PageUrl(const HelpPage& page)
{
    return QUrl(QStringLiteral("qrc:/help/%1.html").arg(QLatin1String(page.file)));
}

int PageAbout(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const auto* about =
            std::find_if(kHelpOfWindows.begin(), kHelpOfWindows.end(), [widget](const HelpOfWindow& candidate) {
                return widget->objectName() == QLatin1String(candidate.window);
            });
        if (about != kHelpOfWindows.end())
            return NumberOf(about->file);
    }
    return -1;
}

} // namespace sprout
