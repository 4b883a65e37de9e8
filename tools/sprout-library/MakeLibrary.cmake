# SPDX-License-Identifier: GPL-3.0-or-later
# Runs TOOL on SOURCE to make OUTPUT. The generated files get the time of the last commit to their sources, so the same
# sources give the same bytes on any day; SOURCE_DATE_EPOCH overrides that time if it is set.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND git log -1 --format=%ct -- library art/beats art/tunes art/stars
                    WORKING_DIRECTORY ${SOURCE} OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET
                    RESULT_VARIABLE failed)
    if(NOT failed AND time MATCHES "^[0-9]+$")
        set(ENV{SOURCE_DATE_EPOCH} ${time})
    endif()
endif()
execute_process(COMMAND ${TOOL} ${SOURCE} ${OUTPUT} RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "The library was not made.")
endif()
