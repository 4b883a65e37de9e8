// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <thread>

namespace sprout {

/// The command that mails the song: it writes the song as a WMA file under its title into a private folder and hands
/// the file to the user's mail program, which reads it when it sends.
///
/// The mail program starts while the window lives on. A click meanwhile starts nothing a second time and shows on the
/// status line what is going on. Where no mail program starts, a message tells where the file is, and its folder opens.
class EmailSong : public QObject {
    Q_OBJECT

public:
    explicit EmailSong(QObject* parent);
    EmailSong(const EmailSong&) = delete;
    EmailSong& operator=(const EmailSong&) = delete;
    ~EmailSong() override { StopWaiting(); }

    /// Tells its own failures and never throws. Writing the file may be stopped by the user; nothing is left then.
    void EmailBtn();

    /// True from a click until the mail program was started, or all is told.
    [[nodiscard]] bool IsUnderWay() const { return underWay; }

    /// The program ends: nobody waits for the mail program any more, and nothing is told of it.
    void StopWaiting();

private:
    [[nodiscard]] bool MailSong();
    void HandOver(const std::filesystem::path& file);
    void EndHandOver(bool started);
    void TellFailure();

    std::filesystem::path file; ///< of the last hand-over
    bool underWay = false;
    QTimer tellTimer; ///< waits for the moment of a message
    std::jthread handOver;
};

} // namespace sprout
