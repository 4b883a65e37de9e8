# SPDX-License-Identifier: GPL-3.0-or-later
# Compiler settings for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(SPROUT_CCACHE ccache)
if(SPROUT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${SPROUT_CCACHE})
endif()

# The mixer's loops are written to be vectorised; -O3 does so with the baseline x86-64 instruction set.
# Contraction is off because a render must give the same samples on every machine and compiler.
set(CMAKE_CXX_FLAGS_RELEASE "-O3 -DNDEBUG")
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-restrict -Wno-stringop-overflow) # g++ 12 misfires on "text" + string
    if(SPROUT_SANITIZE)
        add_compile_options(-Wno-maybe-uninitialized) # with sanitizer checks it also misfires on std::regex
    endif()
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(-Wno-sign-conversion) # part of clang's -Wconversion, not of g++'s
endif()

# A generator expression would split a list of sanitizers at its comma, so the list goes straight into the options.
if(SPROUT_SANITIZE)
    # As much as a report needs: optimised no further than it is worth, and lines without variables.
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1")
    add_compile_options(-fsanitize=${SPROUT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${SPROUT_SANITIZE})
endif()
