# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` installs. All links are relative, so the folder may be moved as a whole:
#
#   bin/                              links to the programs
#   lib/sprout-painter/               the programs and their helper
#   lib/sprout-painter/Sprout         a link to share/sprout-painter/
#   lib/sprout-painter/installed      tells the program that it is installed: see FindTempFolder in src/core/Paths.h
#   share/sprout-painter/             the library: beats, tunes, stars and songs; demos and the help's pictures

set(programs sprout-song)
if(SPROUT_WINDOWS)
    list(APPEND programs sprout-painter)
endif()
install(TARGETS ${programs} sprout-read-sound RUNTIME DESTINATION lib/sprout-painter)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/installed DESTINATION lib/sprout-painter)

# sprout_install_link(LINK TARGET): installs a link, whether or not there is anything at its target yet.
function(sprout_install_link link target)
    get_filename_component(folder ${link} DIRECTORY)
    set(made ${CMAKE_BINARY_DIR}/install/${link})
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/install/${folder})
    file(CREATE_LINK ${target} ${made} SYMBOLIC)
    install(FILES ${made} DESTINATION ${folder})
endfunction()

foreach(program IN LISTS programs)
    sprout_install_link(bin/${program} ../lib/sprout-painter/${program})
endforeach()

if(SPROUT_LIBRARY)
    install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Sprout/ DESTINATION share/sprout-painter
            PATTERN .sprout-library EXCLUDE)
    sprout_install_link(lib/sprout-painter/Sprout ../../share/sprout-painter)
endif()
