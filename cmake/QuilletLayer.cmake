# quillet_precompiled(<kind> HEADERS <header>... LIBRARIES <target>... [OPTIONS <option>...])
# quillet_use_precompiled(<target> <kind>)
#
# Headers of Qt and the standard library that nearly every source reads, compiled once for all targets of a kind. Our own
# headers still name what they need: all_verify_interface_header_sets compiles each of them alone, without these.
#
# Only for GCC, which takes a precompiled header as long as the definitions that it read are the same; clang wants all to
# be the same.
option(QUILLET_PRECOMPILED "Precompile the headers of Qt" ON)
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(QUILLET_PRECOMPILED OFF)
endif()
function(quillet_precompiled kind)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES;OPTIONS")
    if(NOT QUILLET_PRECOMPILED)
        return()
    endif()
    file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/precompiled_${kind}.cpp CONTENT "")
    add_library(quillet_precompiled_${kind} STATIC ${PROJECT_BINARY_DIR}/precompiled_${kind}.cpp)
    set_target_properties(quillet_precompiled_${kind} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(quillet_precompiled_${kind} PRIVATE ${arg_LIBRARIES})
    target_compile_options(quillet_precompiled_${kind} PRIVATE ${arg_OPTIONS})
    target_precompile_headers(quillet_precompiled_${kind} PRIVATE ${arg_HEADERS})
endfunction()
function(quillet_use_precompiled target kind)
    if(QUILLET_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM quillet_precompiled_${kind})
    endif()
endfunction()

set(quillet_core_headers
    <QByteArray> <QDateTime> <QFile> <QHash> <QList> <QObject> <QPointer> <QSet> <QString> <QTimer> <QUuid>
    <algorithm> <array> <chrono> <functional> <memory> <optional> <span> <utility> <vector>)
quillet_precompiled(core HEADERS ${quillet_core_headers} LIBRARIES Qt6::Core)
quillet_precompiled(widgets
    HEADERS ${quillet_core_headers} <QAbstractListModel> <QBoxLayout> <QEvent> <QLabel> <QMenu> <QPainter> <QTextLayout>
        <QWidget>
    LIBRARIES Qt6::Widgets)

# quillet_layer(<name> SOURCES <file>... [USES <layer>...] [LIBRARIES <target>...])
#
# Declares src/<name> as one static library. USES names the layers it may include; LIBRARIES are the libraries it wraps,
# linked privately but for Qt. Every <file>.cpp has its header beside it; headers without a source are listed
# themselves. Each header is compiled alone by the target all_verify_interface_header_sets.
function(quillet_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES;LIBRARIES")
    set(folder ${CMAKE_CURRENT_SOURCE_DIR})
    set(headers)
    set(sources)
    foreach(file IN LISTS arg_SOURCES)
        if(file MATCHES "\\.h$")
            list(APPEND headers ${folder}/${file})
        else()
            list(APPEND sources ${folder}/${file})
            string(REGEX REPLACE "\\.cpp$" ".h" header ${file})
            if(EXISTS ${folder}/${header})
                list(APPEND headers ${folder}/${header})
            endif()
        endif()
    endforeach()

    add_library(quillet_${name} STATIC ${sources} ${headers})
    target_sources(quillet_${name} INTERFACE FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})
    target_include_directories(quillet_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    foreach(layer IN LISTS arg_USES)
        target_link_libraries(quillet_${name} PUBLIC quillet_${layer})
    endforeach()
    foreach(library IN LISTS arg_LIBRARIES)
        if(library MATCHES "^Qt6::")
            target_link_libraries(quillet_${name} PUBLIC ${library})
        else()
            target_link_libraries(quillet_${name} PRIVATE ${library})
        endif()
    endforeach()
    if("Qt6::Widgets" IN_LIST arg_LIBRARIES)
        quillet_use_precompiled(quillet_${name} widgets)
    else()
        quillet_use_precompiled(quillet_${name} core)
    endif()
    # What the test of the layers reads.
    set_property(GLOBAL APPEND_STRING PROPERTY QUILLET_LAYERS "${name}:${arg_USES}\n")
endfunction()

# quillet_test(<name> SOURCE <file> LIBRARIES <target>... [OFFSCREEN] [DRIVES_PROGRAM])
# One Qt Test program of one source, run in UTC and the C locale so that no test depends on the machine's. Tests are
# compiled without optimisation: what they test is optimised, and compiling them takes the most of a build.
# DRIVES_PROGRAM is for tests that run the program on a private desktop: they find it under PROGRAM, and have a label.
function(quillet_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "OFFSCREEN;DRIVES_PROGRAM" "SOURCE" "LIBRARIES")
    # moc by itself: AUTOMOC would read every source and compile one more for each test.
    qt_generate_moc(${CMAKE_CURRENT_SOURCE_DIR}/${arg_SOURCE} ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc TARGET ${name})
    add_executable(${name} ${arg_SOURCE} ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(${name} PRIVATE Qt6::Test ${arg_LIBRARIES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_BINARY_DIR})
    target_compile_options(${name} PRIVATE ${quillet_test_options})
    # What QTest brings depends on the modules of Qt that are linked.
    if(arg_OFFSCREEN)
        quillet_use_precompiled(${name} widgettest)
    elseif(arg_LIBRARIES MATCHES "quillet_(desktop|stage)")
        target_link_libraries(${name} PRIVATE Qt6::Network)
        quillet_use_precompiled(${name} desktoptest)
    else()
        quillet_use_precompiled(${name} test)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(environment "TZ=UTC" "LC_ALL=C.UTF-8" "QT_LOGGING_TO_CONSOLE=1")
    if(arg_OFFSCREEN)
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
    if(arg_DRIVES_PROGRAM)
        add_dependencies(${name} quillet quillet_shiftedclock)
        target_compile_definitions(${name} PRIVATE PROGRAM="$<TARGET_FILE:quillet>")
        set_tests_properties(${name} PROPERTIES LABELS desktop)
    endif()
endfunction()
