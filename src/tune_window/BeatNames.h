// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

namespace sprout {

/// The names for people of a tune's beats; each is looked up in the folder of beats once.
class BeatNames {
public:
    [[nodiscard]] const std::string& NameForPeople(const std::string& beat);

    /// The next names are looked up anew.
    void Forget() { names.clear(); }

private:
    std::map<std::string, std::string> names;
};

} // namespace sprout
