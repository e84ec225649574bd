# recastor_train(TARGET): compiles a library with what a first build of the program has noted at
# work, how often each function is called and each branch taken, so that the compiler expands and
# lays out what runs often. docs/performance.md tells what that wins.
#
# The first build stands in the folder `training` of the build; it is made and put to work once.
# What was noted of functions that have changed since is left aside, and a new build folder notes
# anew. Whoever changes sources may do without: `-DRECASTOR_TRAINED=OFF` builds once, and gives
# warnings in every build.

option(RECASTOR_TRAINED "Build twice, the second time with what the first has noted at work" ON)
option(RECASTOR_NOTES_WORK "Build the program that notes what it does at work" OFF)

if(RECASTOR_NOTES_WORK)
    add_compile_options(-fprofile-generate)
    add_link_options(-fprofile-generate)
endif()

set(recastor_trains OFF)
if(RECASTOR_TRAINED AND CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT RECASTOR_NOTES_WORK
   AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CROSSCOMPILING)
    set(recastor_trains ON)
    set(folder ${PROJECT_BINARY_DIR}/training)
    # Without `DEPENDS generate-input`, which is built first in any case: new notes would reach only
    # those objects that are compiled behind them.
    add_custom_command(OUTPUT ${folder}/done
        COMMAND sh ${PROJECT_SOURCE_DIR}/cmake/train $<TARGET_FILE:generate-input> ${folder}
            ${CMAKE_COMMAND} -G ${CMAKE_GENERATOR} -S ${PROJECT_SOURCE_DIR}
            -DCMAKE_MAKE_PROGRAM=${CMAKE_MAKE_PROGRAM} -DCMAKE_BUILD_TYPE=Release
            -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
            -DCMAKE_CXX_COMPILER_ARG1=${CMAKE_CXX_COMPILER_ARG1}
            -DCMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS}
            -DRECASTOR_NOTES_WORK=ON -DRECASTOR_BUILD_TESTS=OFF
        COMMENT "Building the program once to note what it does at work" VERBATIM)
    add_custom_target(recastor_training DEPENDS ${folder}/done)
endif()

function(recastor_train target)
    if(recastor_trains)
        add_dependencies(${target} recastor_training)
        # The first build has given every warning, as an error. Functions expanded as the notes say
        # bring false ones.
        target_compile_options(${target} PRIVATE -fprofile-use -fprofile-partial-training -w)
    endif()
endfunction()
