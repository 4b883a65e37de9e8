// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Errors.h"

#include <new>
#include <system_error>

namespace sprout {

std::string ErrorText(const std::exception& error)
{
    if (dynamic_cast<const std::bad_alloc*>(&error) || dynamic_cast<const std::length_error*>(&error))
        return "There is not enough memory.";
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        return system->code().message();
    return error.what();
}

} // namespace sprout
