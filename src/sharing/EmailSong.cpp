// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/EmailSong.h"

#include <QApplication>

#include <exception>
#include <stop_token>
#include <system_error>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "base/Log.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Mail.h"
#include "service/PrivateFolders.h"
#include "service/Services.h"
#include "sharing/WriteSong.h"
#include "sharing/rules/AttachmentName.h"
#include "sharing/rules/MailText.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr int kLookForQuietMs = 100;

/// A private folder that is deleted with this object unless it is kept.
class MailFolder {
public:
    MailFolder() : path(TheServices().privateFolders->MakeFolder(Shared().TempFolder)) {}
    MailFolder(const MailFolder&) = delete;
    MailFolder& operator=(const MailFolder&) = delete;
    ~MailFolder()
    {
        if (!kept)
            TheServices().privateFolders->DeleteFolder(path);
    }

    [[nodiscard]] const fs::path& Path() const { return path; }
    void Keep() { kept = true; }

private:
    fs::path path;
    bool kept = false;
};

/// Whether a mail program was started with the message.
bool WasStarted(Mail& mail, const MailMessage& message, const std::stop_token& stop)
{
    bool isStarted = false;
    GuardedQuietly("Starting a mail program", [&] { isStarted = mail.HandOver(message, stop); });
    return isStarted; // if not, a message tells where the file is
}

/// While this is true, a message would get between the user and an open question, end a mouse stroke, or interrupt long
/// work, which shows the hourglass.
bool IsBusy()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget() || QApplication::overrideCursor() ||
           QApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

EmailSong::EmailSong(QObject* parent) : QObject(parent), tellTimer(this)
{
    tellTimer.setInterval(kLookForQuietMs);
    connect(&tellTimer, &QTimer::timeout, this, &EmailSong::TellFailure);
}

void EmailSong::EmailBtn()
{
    if (underWay) {
        ShowHint(Words::Text("Your mail program is starting."));
        return;
    }
    ShowHint({});
    underWay = true;
    bool isHandedOver = false;
    Guarded([&] { isHandedOver = MailSong(); });
    underWay = isHandedOver;
}

/// Returns whether the song has been handed over.
bool EmailSong::MailSong()
{
    try {
        MailFolder folder;
        const fs::path wma = folder.Path() / AttachmentName(Shared().Song.SongTitle);
        const ExportOutcome outcome = MixAndWrite(WriteWmaFile, wma, Words::Text("Writing the wma file"));
        if (!outcome.Line1.IsBlank())
            ShowMessage(outcome.Line1, outcome.Line2);
        if (outcome.End != ExportEnd::Written) {
            if (Shared().Song.SongMix.Length == 0)
                ShowHint(Words::Text("Please paint on the track."));
            return false;
        }
        folder.Keep();
        HandOver(wma);
        return true;
    } catch (const WorkStopped&) {
        return false;
    }
}

void EmailSong::HandOver(const fs::path& wma)
{
    file = wma;
    const SongState& song = Shared().Song;
    const MailMessage message{
        {}, ShownText(MailSubject(song.SongTitle)), ShownText(MailBody(song.SongTitle, song.SongCreatedBy)), wma};
    const auto work = [this, &mail = *TheServices().mail, message](const std::stop_token& stop) {
        const bool started = WasStarted(mail, message, stop);
        QMetaObject::invokeMethod(
            this, [this, started] { EndHandOver(started); }, Qt::QueuedConnection);
    };
    try {
        handOver = std::jthread(work);
    } catch (const std::system_error& error) {
        LogFailure("Starting a thread for mail", error);
        tellTimer.start();
    }
}

void EmailSong::EndHandOver(bool started)
{
    if (!handOver.joinable())
        return; // nobody is waiting any more
    handOver.join();
    underWay = !started;
    if (!started)
        TellFailure();
}

void EmailSong::TellFailure()
{
    if (IsBusy()) {
        tellTimer.start();
        return;
    }
    tellTimer.stop();
    Guarded([this] {
        ShowMessage(Words::Text("Failed to send email. Song is saved to file:"), Words::AsIs(PathText(file)));
        OpenWithShell(PathText(file.parent_path()));
    });
    underWay = false;
}

void EmailSong::StopWaiting()
{
    tellTimer.stop();
    handOver = std::jthread(); // asks the hand-over to end and waits for it
    underWay = false;
}

} // namespace sprout
