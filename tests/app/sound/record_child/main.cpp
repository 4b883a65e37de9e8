// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_record_child LEFT RIGHT BLOCKS: records into two files until they hold `BLOCKS` blocks of 0.2 s. Exits with 0,
// with 1 if it cannot record, or with 2 if frames were lost.
#include <cstdlib>

#include "app/sound/MachineCapture.h"
#include "support/Comes.h"

int main(int argc, char** argv)
{
    sprout::MachineCapture capture;
    if (argc != 4 || capture.Open() != sprout::CaptureOpening::Ready || !capture.Start(argv[1], argv[2]))
        return 1;
    const int blocks = std::atoi(argv[3]);
    if (!sprout::Comes([&] { return capture.Status().Blocks >= blocks; }))
        return 1;
    capture.Stop();
    return capture.Status().LostPieces == 0 ? EXIT_SUCCESS : 2;
}
