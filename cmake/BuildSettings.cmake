# Compiler settings that every target of the project shares: recastor_build_settings(TARGET).

set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g -D_GLIBCXX_ASSERTIONS")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -D_FORTIFY_SOURCE=2 -fstack-protector-strong")

# What users run is placed at random in memory, and its tables of addresses are read-only.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
add_link_options(-Wl,-z,relro,-z,now)

add_library(recastor_settings INTERFACE)
target_compile_options(recastor_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wduplicated-cond -Wlogical-op
    -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough -Wundef -Werror
    # Source names in internal-check messages are given from the project's root.
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)

if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(recastor_settings INTERFACE
        -Wno-unknown-warning-option)
endif()

if(RECASTOR_BUILD_FUZZ_TARGETS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(RECASTOR_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${sanitizers} -g1) # reports tell lines, and more takes long to write
    add_link_options(${sanitizers})
endif()

# The program is optimised as a whole when it is linked (a fifth faster on TABLES commands), and may
# grow by what is expanded in place (another eighth). Of what was noted at work all but a thousandth
# of the time counts as hot, instead of all but a hundredth (3 % on banners). The libraries' objects
# hold ordinary code as well, so that tests link quickly and users of the installed libraries need
# no such compiler.
set(recastor_link_time_optimisation -O3)
set(recastor_object_optimisation -O3)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT RECASTOR_NOTES_WORK)
    list(APPEND recastor_link_time_optimisation -flto=auto --param=large-unit-insns=100000
        --param=hot-bb-count-ws-permille=999)
    set(recastor_object_optimisation ${recastor_link_time_optimisation} -ffat-lto-objects)
endif()
function(recastor_optimise_when_linked target)
    target_compile_options(${target} PRIVATE
        "$<$<CONFIG:Release>:${recastor_object_optimisation}>")
endfunction()

function(recastor_build_settings target)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:recastor_settings>)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/recastor>)
endfunction()

# Installs a library target and its headers, which keep their place in the tree.
function(recastor_install_library target)
    file(RELATIVE_PATH room ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    recastor_optimise_when_linked(${target})
    recastor_train(${target})
    install(TARGETS ${target} EXPORT recastorTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/recastor/${room}
        FILES_MATCHING PATTERN "*.h")
endfunction()
