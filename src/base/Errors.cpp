// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Errors.h"

#include <new>
#include <system_error>

namespace sprout {

RunTimeError::RunTimeError(const Words& sentence)
    : std::runtime_error(sentence.English()), words(std::make_shared<const Words>(sentence))
{
}

Words ErrorWords(const std::exception& error)
{
    if (dynamic_cast<const std::bad_alloc*>(&error) || dynamic_cast<const std::length_error*>(&error))
        return Words::Text("There is not enough memory.");
    if (const auto* own = dynamic_cast<const RunTimeError*>(&error))
        return own->Sentence();
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        return Words::AsIs(system->code().message());
    return Words::AsIs(error.what());
}

} // namespace sprout
