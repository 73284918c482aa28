# What every target of this tree shares: language, warnings, the bundle's folders, and the functions
# that the rooms use to add themselves.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)

find_program(CALDERIN_CCACHE ccache)
if(CALDERIN_CCACHE AND CALDERIN_IS_TOP)
    set(CMAKE_C_COMPILER_LAUNCHER ${CALDERIN_CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CALDERIN_CCACHE})
endif()

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

# The programs find their data relative to themselves: Contents/MacOS beside Contents/Resources.
set(CALDERIN_BUNDLE ${PROJECT_BINARY_DIR}/Contents)
set(CALDERIN_BIN ${CALDERIN_BUNDLE}/MacOS)
set(CALDERIN_RESOURCES ${CALDERIN_BUNDLE}/Resources)
file(MAKE_DIRECTORY ${CALDERIN_BIN} ${CALDERIN_RESOURCES})

add_library(calderin_options INTERFACE)
target_compile_options(calderin_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # The plain sample loops are to vectorise at -O2 also where the trip count isn't a constant.
    $<$<CXX_COMPILER_ID:GNU>:-fvect-cost-model=dynamic>
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
target_compile_definitions(calderin_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_STRICT_ITERATORS
    QT_MESSAGELOGCONTEXT)
if(CALDERIN_SANITIZE)
    add_compile_options(-fsanitize=${CALDERIN_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${CALDERIN_SANITIZE})
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2")
set(CMAKE_C_FLAGS_RELEASE "-O2")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1")

# calderin_library(<name> [LINKS <public libraries>...])
# A static library whose rooms add their sources with calderin_room.
function(calderin_library name)
    cmake_parse_arguments(ARG "" "" "LINKS;PRIVATE_LINKS" ${ARGN})
    set(anchor ${CMAKE_CURRENT_BINARY_DIR}/${name}_anchor.cpp)
    if(NOT EXISTS ${anchor})
        file(WRITE ${anchor} "// Keeps the archive valid while a room is empty.\n")
    endif()
    add_library(${name} STATIC ${anchor})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE calderin_options ${ARG_PRIVATE_LINKS})
endfunction()

# calderin_room(<library> <sources>...)
# Adds this folder's sources to a library and puts the folder on its public include path.
function(calderin_room library)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    target_sources(${library} PRIVATE ${ARGN})
    # The first header of a library doesn't bring the moc run about in a tree that was built before.
    get_target_property(dir ${library} BINARY_DIR)
    if(CMAKE_CURRENT_LIST_FILE IS_NEWER_THAN ${dir}/${library}_autogen/timestamp)
        file(REMOVE ${dir}/${library}_autogen/timestamp)
    endif()
    target_include_directories(${library} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# calderin_program(<name> SOURCES <sources>... LINKS <libraries>...)
# A program of the bundle.
function(calderin_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE calderin_options ${ARG_LINKS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CALDERIN_BIN})
endfunction()

# calderin_test(<name> [APP] [XVFB] [SERIAL] SOURCES <sources>... LINKS <libraries>... [TIMEOUT <s>])
# One test program of one room. It lies beside the programs, so that the bundle's data is found.
# APP: the main makes a QMWidgets::App instead of a QCoreApplication. SERIAL: runs alone.
function(calderin_test name)
    cmake_parse_arguments(ARG "APP;SERIAL" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    if(ARG_APP)
        target_link_libraries(${name} PRIVATE calderin_options ${ARG_LINKS} test_support_app)
    else()
        target_link_libraries(${name} PRIVATE calderin_options ${ARG_LINKS} test_support)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CALDERIN_BIN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    set(support ${PROJECT_SOURCE_DIR}/tests/support)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} RUN_SERIAL "${ARG_SERIAL}"
        ENVIRONMENT "LSAN_OPTIONS=suppressions=${support}/lsan.supp;TSAN_OPTIONS=suppressions=${support}/tsan.supp")
endfunction()
