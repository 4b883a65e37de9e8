// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "sprout-song/SproutSong.h"

int main(int argc, char** argv)
{
    try {
        return sprout::RunSproutSong(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sprout-song: %s\n", error.what());
        return 1;
    }
}
