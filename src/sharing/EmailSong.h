// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <thread>

namespace sprout {

/// The command that mails the song: it writes the song as a WMA file, named after its title, into a private folder and
/// hands the file to the user's mail program, which reads it when sending.
///
/// The mail program starts while the window stays usable. Another click meanwhile only shows the progress on the status
/// line. If no mail program starts, a message tells where the file is, and its folder opens.
class EmailSong : public QObject {
    Q_OBJECT

public:
    explicit EmailSong(QObject* parent);
    EmailSong(const EmailSong&) = delete;
    EmailSong& operator=(const EmailSong&) = delete;
    ~EmailSong() override { StopWaiting(); }

    /// Shows its own failures and never throws. The user may stop the writing; nothing is left behind then.
    void EmailBtn();

    /// True from a click until the mail program has started or the user has been told the outcome.
    [[nodiscard]] bool IsUnderWay() const { return underWay; }

    /// The program is ending: stops waiting for the mail program and shows nothing more about it.
    void StopWaiting();

private:
    [[nodiscard]] bool MailSong();
    void HandOver(const std::filesystem::path& file);
    void EndHandOver(bool started);
    void TellFailure();

    std::filesystem::path file; ///< of the last hand-over
    bool underWay = false;
    QTimer tellTimer; ///< waits for the moment to show a message
    std::jthread handOver;
};

} // namespace sprout
