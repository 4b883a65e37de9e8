// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/HandArray.h"

namespace sprout {

// A small song of each version of the file, with all that its layout can hold.

/// Three cells; two beats; a music track with a tune of two steps, one without, an audio track and one of no kind.
inline HandArray MakeArray20()
{
    HandArray array;
    array.Add({4, 2, 3, 400}).Text("My song").Text("");
    array.Text("Drum").Add({1}).Text("stamp").Add({8, 16, 2, 22050, 2, 0x00020001, 0, 0x00040003, 0}).Picture(0x30);
    array.Text("Bass").Add({1}).Text("other stamp").Add({6, 8, 1, 11025, 3, 0x00060005, 7}).Picture(0x31);
    array.Add({0, 1, 2, 0}).Add({1}).Text("Tune").Add({1}).Text("tune stamp").Text("Ann").Picture(0x32);
    array.Add({2}).Add({1, -3, 50, 120, 2}).Add({0, 4, 60, 130, 1}).Add({0});
    array.Add({0, 0, 0, 1}).Add({0});
    array.Add({1, 1, 1, 1}).Add({6, 16, 1, 44100, 2, 0x000A0009, 0});
    array.Add({7, 0, 1, 0});
    return array;
}

/// Version 1.1: stored beat and stored tune; no beat and a star; beat of the folder and stored tune; audio.
inline HandArray MakeArray11()
{
    HandArray array;
    array.Add({4, 2, 400}).Text("Song").Text("Ann");
    array.Add({0, 1, 0}).Add({1}).Text("Drum").Add({1}).Text("stamp").Add({5, 16, 1, 44100, 1, 5}).Picture(0x32);
    array.Add({1}).Text("Tune").Text("tune stamp").Text("Bob").Picture(0x32).Add({2, 1, -2, 80, 0, 3, 90});
    array.Add({0, 0, 1}).Add({0}).Add({0});
    array.Add({0, 1, 1}).Add({1}).Text("Bass").Add({0}).Add({1}).Text("T").Text("").Text("").Picture(0x32).Add({1});
    array.Add({1, 0, 100});
    array.Add({1, 1, 1}).Add({5, 16, 1, 44100, 1, 9});
    return array;
}

/// Version 1: a beat and a star, audio, and two more tracks with beats and stars.
inline HandArray MakeArray10()
{
    HandArray array;
    array.Add({4, 2, 320}).Text("Song").Text("Ann");
    array.Add({0, 1, 0}).Text("Drum").Text("Star");
    array.Add({1, 1, 1}).Add({5, 16, 1, 44100, 1, 9});
    array.Add({0, 0, 1}).Text("Missing").Text("Gone");
    array.Add({0, 0, 1}).Text("drum").Text("Star");
    return array;
}

} // namespace sprout
