// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/Session.h"

#include <unistd.h>

#include "base/Product.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Services.h"
#include "service/posix/LargePages.h"
#include "sprout-song/Printable.h"
#include "stretch/StretchService.h"
#include "waves/WavOperations.h"

namespace sprout {

Watched StandardErrorIsWatched()
{
    return ::isatty(STDERR_FILENO) == 1 ? Watched::Yes : Watched::No;
}

void ToolMessages::MessageBox(const Words& title, const Words& text, MessageIcon /*icon*/)
{
    shown.push_back({title.English(), text.English()});
    const Message& message = shown.back();
    if (!message.title.empty())
        err << Printable(message.title) << ": ";
    err << PrintableLines(message.text) << '\n';
}

void ToolScreen::ShowProgress(std::size_t done, std::size_t total)
{
    if (watched == Watched::No || total < 2)
        return;
    err << '\r' << stage << ": " << done << " of " << total;
    if (done == total)
        err << "\r\033[K";
    err.flush();
}

Session::Session(std::ostream& outStream, std::ostream& errStream, const std::filesystem::path& userRoot,
                 bool beatsOutside, Watched watched)
    : out(outStream), messages(errStream), screen(errStream, watched), stretch(MakeStretch())
{
    TheServices() = {&messages, &screen, &files, &machine, &desktop, &pictures, stretch.get()};
    TheServices().wma = &wma;
    LargePages::UseFromNowOn();
    Shared() = SharedState();
    Shared().SongBeatsInside = !beatsOutside;
    MakePlainPictures();
    Shared().TestTone = MakeTestTone();
    FindTempFolder();
    SetUserRoot(userRoot.empty() ? desktop.DocumentsFolder() / kProductName : userRoot);
}

Session::~Session()
{
    TheServices() = Services();
}

} // namespace sprout
