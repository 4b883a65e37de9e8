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

/// A mail program that notes the messages it is handed. It may take its time until it is let go on.
class FakeMail : public Mail {
public:
    [[nodiscard]] bool HandOver(const MailMessage& message, std::stop_token stop) override
    {
        std::unique_lock lock(mutex);
        messages.push_back(message);
        isAsked.notify_all();
        wasStopped = !mayGoOn.wait(lock, stop, [this] { return !takesItsTime; });
        if (throws)
            throw RunTimeError("The mail program has no ears.");
        return starts;
    }

    /// Returns once a message came.
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

    // To be set before the first message, to be read behind the last.
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

/// Makes folders named by their number, and notes what it is asked.
class FakePrivateFolders : public PrivateFolders {
public:
    [[nodiscard]] std::filesystem::path MakeFolder(const std::filesystem::path& parent) override
    {
        if (fails)
            throw RunTimeError("No folder could be made.");
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
