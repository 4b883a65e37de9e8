// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/fontconfig/FontList.h"

#include <fontconfig/fontconfig.h>

namespace sprout {

std::future<void> ReadFontListAhead()
{
    return std::async([] { FcInit(); });
}

} // namespace sprout
