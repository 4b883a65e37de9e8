# SPDX-License-Identifier: GPL-3.0-or-later
# Runs TOOL on SOURCE to make OUTPUT. The generated files get the time of the last commit to their sources, so the same
# sources give the same bytes on any day. SOURCE_DATE_EPOCH overrides that time if it is set, except in released
# sources, which hold their library's time: packagers set SOURCE_DATE_EPOCH anew with each release.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH} OR EXISTS ${SOURCE}/library/time)
    execute_process(COMMAND ${SOURCE}/tools/scripts/library-time
                    OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE failed)
    if(NOT failed AND time MATCHES "^[0-9]+$")
        set(ENV{SOURCE_DATE_EPOCH} ${time})
    endif()
endif()
execute_process(COMMAND ${TOOL} ${SOURCE} ${OUTPUT} RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "The library was not made.")
endif()
