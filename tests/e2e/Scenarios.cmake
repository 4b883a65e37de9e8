# SPDX-License-Identifier: GPL-3.0-or-later
# Tests with a real sound server, and a real X server with a window manager or a Wayland desktop.

# The player on a real sound server.
add_executable(play_wave e2e/play_wave.cpp)
target_link_libraries(play_wave PRIVATE sprout_engine sprout_service_posix sprout_app_sound)
add_test(NAME SoundServer COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/e2e/sound-server $<TARGET_FILE:play_wave>)
set_tests_properties(SoundServer PROPERTIES LABELS e2e RUN_SERIAL TRUE TIMEOUT 120)

include(${CMAKE_CURRENT_LIST_DIR}/widgets/Plugin.cmake)

# What a user does with the program: needs the program, its library and what the commands of tools/ render. Not in builds
# with a sanitizer, which are too slow to play without gaps.
if(TARGET sprout-painter AND SPROUT_LIBRARY AND NOT SPROUT_SANITIZE)
    foreach(scenario IN ITEMS
            PlayWholeSong PlayShortSong PaintAndPlay TakeStrokeBack ChangeTempo SoundServerDies StopAndPlayFromCell
            HearTracks SaveUnderNewName AskBeforeClosing UseKeysAlone FirstStart WelcomeOnce SpeakAMadeUpLanguage
            OpenedByTheDesktop UpgradeTheLibrary NoDisplay NoSoundServer SmallScreen MoveAndResize MaximizeAndMinimize
            MakeSongOfTunes TakeSongHome MailByThunderbirdOrNobody HideTheMail MakeBeatsOfOtherSounds StopALongExport
            RecordEditAndPlay RecordWithoutMicrophone TwoProgramsRecord KillWhileRecording LittleMemory
            PaintAndPlayOnWayland ShowPaintOnWayland MakeSongOfTunesOnWayland UseKeysAloneOnWayland
            AskBeforeClosingOnWayland ChooseFromMenusOnWayland MoveAndResizeOnWayland)
        add_test(NAME Desk.${scenario}
                 COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/e2e/run-scenario --build ${CMAKE_BINARY_DIR} ${scenario})
        set_tests_properties(Desk.${scenario} PROPERTIES LABELS e2e RUN_SERIAL TRUE TIMEOUT 240)
    endforeach()
    set_tests_properties(Desk.PlayWholeSong PROPERTIES TIMEOUT 330)

    add_test(NAME Words.HaveRoomInAllWindows
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/room-for-translations $<TARGET_FILE:sprout-pictures>
                     $<TARGET_FILE_DIR:sprout-pictures>/Sprout/Songs/Zumi.TqSng)
    set_tests_properties(Words.HaveRoomInAllWindows PROPERTIES TIMEOUT 120)

    foreach(faults IN ITEMS export recording)
        add_test(NAME Faults.${faults}
                 COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/e2e/${faults}-faults ${CMAKE_BINARY_DIR})
        set_tests_properties(Faults.${faults} PROPERTIES LABELS e2e RUN_SERIAL TRUE TIMEOUT 120 SKIP_RETURN_CODE 77)
    endforeach()
    add_test(NAME Faults.home
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/e2e/home-faults ${CMAKE_COMMAND} ${CMAKE_BINARY_DIR})
    set_tests_properties(Faults.home PROPERTIES LABELS e2e RUN_SERIAL TRUE TIMEOUT 240 SKIP_RETURN_CODE 77)
endif()
