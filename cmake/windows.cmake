# The Win32 side: the shell library, the program and the test programs that run
# under Wine. Included from the top-level list when the target is Windows.

enable_language(RC)

# The program and its test programs share one folder, so the end-to-end tests find
# tarvex2.exe beside themselves.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_package(ZLIB REQUIRED)
find_path(MINIZIP_INCLUDE_DIR NAMES minizip/zip.h REQUIRED)
find_library(MINIZIP_LIBRARY NAMES minizip REQUIRED)
add_library(tarvex_minizip INTERFACE)
target_include_directories(tarvex_minizip INTERFACE ${MINIZIP_INCLUDE_DIR})
target_link_libraries(tarvex_minizip INTERFACE ${MINIZIP_LIBRARY} ZLIB::ZLIB)

set(tarvex_windows_definitions UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
# uuid comes before oleacc: otherwise IID_IAccessible resolves to oleacc's import thunk
# and every query for it fails.
set(tarvex_windows_libraries
    gdiplus comctl32 comdlg32 shell32 shlwapi ole32 oleaut32 uuid oleacc winmm psapi advapi32 gdi32 user32 kernel32)

# One static runtime in every program: nothing to ship beside the exe.
add_link_options(-static -static-libgcc -static-libstdc++)

add_library(tarvex_shell STATIC ${tarvex_shell_sources})
target_compile_definitions(tarvex_shell PUBLIC ${tarvex_windows_definitions})
target_link_libraries(tarvex_shell PUBLIC tarvex_core tarvex_minizip ${tarvex_windows_libraries})

add_executable(tarvex2 WIN32 ${tarvex_entry_source} ${CMAKE_SOURCE_DIR}/resources/tarvex2.rc)
target_link_libraries(tarvex2 PRIVATE tarvex_shell)
target_link_options(tarvex2 PRIVATE -municode)
target_include_directories(tarvex2 PRIVATE ${CMAKE_SOURCE_DIR}/resources)
set_source_files_properties(${CMAKE_SOURCE_DIR}/resources/tarvex2.rc PROPERTIES
    OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/resources/tarvex2.manifest;${CMAKE_SOURCE_DIR}/resources/tarvex2.ico")

# Files the program expects beside itself, copied again whenever one of them changes.
file(GLOB_RECURSE theme_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/themes/*)
file(GLOB help_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/help/Tv2/*)
set(beside_exe_sources ${CMAKE_SOURCE_DIR}/resources/DefMenu.ini ${theme_files} ${help_files})
set(beside_exe_outputs)
foreach(source IN LISTS beside_exe_sources)
    file(RELATIVE_PATH relative ${CMAKE_SOURCE_DIR}/resources ${source})
    string(REPLACE "themes/" "Themes/" relative ${relative})
    string(REPLACE "help/" "Help/" relative ${relative})
    set(output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${relative})
    add_custom_command(OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${source} ${output}
        DEPENDS ${source})
    list(APPEND beside_exe_outputs ${output})
endforeach()
add_custom_target(tarvex2_files ALL DEPENDS ${beside_exe_outputs})
add_dependencies(tarvex2 tarvex2_files)

find_package(GTest REQUIRED)
include(GoogleTest)

if(CMAKE_CROSSCOMPILING)
    # ctest runs every Windows test program under Wine in a private prefix.
    set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_SOURCE_DIR}/tools/wine-run.sh --prefix ${CMAKE_BINARY_DIR}/wineprefix)
endif()

# Helpers shared by the shell tests and the end-to-end tests.
add_library(tarvex_test_support STATIC ${CMAKE_SOURCE_DIR}/tests/support/temp_folder.cpp
                                       ${CMAKE_SOURCE_DIR}/tests/support/test_pictures.cpp
                                       ${CMAKE_SOURCE_DIR}/tests/support/key_by_key.cpp)
target_include_directories(tarvex_test_support PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(tarvex_test_support PUBLIC tarvex_shell)

add_subdirectory(tests/win)
add_subdirectory(tests/e2e)
add_subdirectory(bench/win)
