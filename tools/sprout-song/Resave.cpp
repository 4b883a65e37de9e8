// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <filesystem>
#include <optional>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Shared.h"
#include "songs/OpenSaveClass.h"
#include "sound/TuneRender.h"
#include "sprout-song/Commands.h"
#include "sprout-song/Loading.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

namespace {

/// A saved tune counts as rendered, so a tune that comes without a sound, as in the old form, is rendered first.
void SaveTune(const std::filesystem::path& path)
{
    Tune& tune = Shared().TuneClipboard;
    if (!tune.TuneWaveValid)
        RenderTuneCycle(tune);
    TunOpnSavClass().Save_Tune(path);
}

} // namespace

bool RunResave(Session& session, const Arguments& arguments)
{
    arguments.RequireWords(2, "resave IN OUT");
    const std::filesystem::path in = arguments.Words()[0];
    const std::filesystem::path out = arguments.Words()[1];
    const std::optional<FileKind> kind = KindOfFile(in);
    const bool isSong = kind == FileKind::Song;
    if (!isSong && kind != FileKind::Tune) {
        session.Fail(Words::Text("Error Opening File"), Words::Text("%1 is neither a song nor a tune.", PathText(in)));
        return false;
    }
    if (isSong ? !LoadSong(session, in) : !LoadTune(session, in))
        return false;
    try {
        if (isSong)
            OpenSaveClass().Save_Song(out);
        else
            SaveTune(out);
    } catch (const std::exception& error) {
        session.Fail(Words::Text("Error Saving File"), ErrorWords(error));
        return false;
    }
    return true;
}

} // namespace sprout
