# SPDX-License-Identifier: GPL-3.0-or-later
# Tells the scenarios where the controls of the running program are.
find_package(Qt6 REQUIRED COMPONENTS Widgets)
file(GLOB widgets CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.cpp)
add_library(sproutwidgets MODULE ${widgets})
set_target_properties(sproutwidgets PROPERTIES AUTOMOC ON LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/e2e/generic)
target_compile_definitions(sproutwidgets PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
target_link_libraries(sproutwidgets PRIVATE Qt6::Widgets)
