# SPDX-License-Identifier: GPL-3.0-or-later
# Headers that are read once a build in place of once a source: one set for windows and one for tests.

# sprout_precompile(NAME HEADER...): makes NAME, whose headers other targets take by
# target_precompile_headers(... REUSE_FROM NAME). The compiler accepts them only with the same options and definitions.
function(sprout_precompile name)
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_precompile_headers(${name} PRIVATE <algorithm> <array> <chrono> <filesystem> <functional> <map> <memory>
                              <optional> <string> <vector> ${ARGN})
endfunction()
