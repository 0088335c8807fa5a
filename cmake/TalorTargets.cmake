# The floors of the house as libraries. Each library sees only what the floors below it offer, so that a
# window can never slip into the logic: talor_logic has no path to Qt's Gui or Widgets.
#
#   talor_logic     store, core and the logic of every function      Qt Core, SQLite
#   talor_reports   report templates, layout, PDF                    Qt Gui
#   talor_forms     controls, services, preview, every dialog, shell Qt Widgets

add_library(talor_options INTERFACE)
target_compile_options(talor_options INTERFACE -Wall -Wextra -Wno-missing-field-initializers $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local> -Wnon-virtual-dtor -Werror)
target_compile_definitions(talor_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
target_include_directories(talor_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(TALOR_SANITIZE)
    target_compile_options(talor_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
    target_link_options(talor_options INTERFACE -fsanitize=address,undefined)
endif()
if(TALOR_FUZZ)
    target_compile_options(talor_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# talor_sources(<library> <file>...): adds files of the calling folder to one of the libraries.
function(talor_sources library)
    list(TRANSFORM ARGN PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    target_sources(${library} PRIVATE ${ARGN})
endfunction()
