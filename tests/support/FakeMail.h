// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <stop_token>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "service/Mail.h"
#include "service/PrivateFolders.h"

namespace sprout {

/// A mail program that keeps the messages it gets. It can be made to wait for `GoOn`.
class FakeMail : public Mail {
public:
    [[nodiscard]] bool HandOver(const MailMessage& message, std::stop_token stop) override
    {
        std::unique_lock lock(mutex);
        messages.push_back(message);
        isAsked.notify_all();
        wasStopped = !mayGoOn.wait(lock, stop, [this] { return !takesItsTime; });
        if (throws)
            throw RunTimeError(Words::AsIs("The mail program has no ears."));
        return starts;
    }

    /// Returns once a message has arrived.
    void WaitForMessage()
    {
        std::unique_lock lock(mutex);
        isAsked.wait(lock, [this] { return !messages.empty(); });
    }
    void GoOn()
    {
        const std::lock_guard lock(mutex);
        takesItsTime = false;
        mayGoOn.notify_all();
    }

    // Set these before the first message; read them after the last.
    bool starts = true;
    bool throws = false;
    bool takesItsTime = false;
    bool wasStopped = false;
    std::vector<MailMessage> messages;

private:
    std::mutex mutex;
    std::condition_variable_any mayGoOn;
    std::condition_variable isAsked;
};

/// Makes numbered folders and logs its calls.
class FakePrivateFolders : public PrivateFolders {
public:
    [[nodiscard]] std::filesystem::path MakeFolder(const std::filesystem::path& parent) override
    {
        if (fails)
            throw RunTimeError(Words::AsIs("No folder could be made."));
        made.push_back(parent / ("private" + std::to_string(made.size() + 1)));
        std::filesystem::create_directory(made.back());
        return made.back();
    }
    void DeleteFolder(const std::filesystem::path& folder) override { std::filesystem::remove_all(folder); }
    void DeleteLeftFolders(const std::filesystem::path& parent) override { cleaned.push_back(parent); }

    bool fails = false;
    std::vector<std::filesystem::path> made;
    std::vector<std::filesystem::path> cleaned;
};

} // namespace sprout
