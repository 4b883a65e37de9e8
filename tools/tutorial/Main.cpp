// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the demos of the tutorial and the pictures of the help: plays scripts on the program itself, without a screen.
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "tutorial/MakeDemos.h"
#include "tutorial/MakeHelp.h"

namespace {

constexpr const char* kUsage =
    "usage: sprout-tutorial SCRIPTS SPROUT DEMOS\n"
    "       sprout-tutorial --help-pictures SCRIPT SPROUT PICTURES\n"
    "Makes the pictures, sounds and lists of the demos whose scripts are in a folder, or "
    "the pictures of\nwindows in the help. SPROUT: the folder of the installed beats, tunes, "
    "songs and demos. DEMOS, PICTURES:\nthe folder for what is made.\n";

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    try {
        if (words.size() == 5 && words[0] == "--one")
            return sprout::MakeOneDemo(argc, argv);
        if (words.size() == 4 && words[0] == "--help-pictures")
            return sprout::MakeHelpPictures(argc, argv);
        if (words.size() == 4 && words[0] == "--help-here")
            return sprout::MakeHelpPicturesHere(argc, argv);
        if (words.size() == 3)
            return sprout::MakeAllDemos(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    std::fputs(kUsage, stderr);
    return 2;
}
