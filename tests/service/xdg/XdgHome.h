// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "support/TestFolder.h"

namespace sprout {

/// A private home; the environment is restored afterwards.
class XdgHome : public testing::Test {
protected:
    XdgHome()
    {
        Set("HOME", folder.Path() / "home");
        Set("XDG_CONFIG_HOME", "");
        std::filesystem::create_directories(folder.Path() / "home/.config");
    }
    ~XdgHome() override
    {
        for (const auto& [name, value] : before) {
            if (value)
                ::setenv(name.c_str(), value->c_str(), 1);
            else
                ::unsetenv(name.c_str());
        }
    }

    void Set(const std::string& name, const std::string& value)
    {
        const char* old = std::getenv(name.c_str());
        before.emplace(name, old ? std::optional<std::string>(old) : std::nullopt);
        ::setenv(name.c_str(), value.c_str(), 1);
    }

    TestFolder folder;
    std::map<std::string, std::optional<std::string>> before;
};

} // namespace sprout
