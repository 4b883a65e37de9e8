// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "sprout-library/Tool.h"

int main(int count, char** words)
{
    return sprout::RunTool({words + 1, words + count}, std::cout, std::cerr);
}
