# recastor_check_headers(TARGET): compiles each header of the calling folder alone, so that a
# header that leans on what its includers happened to include first breaks the build.

function(recastor_check_headers target)
    if(RECASTOR_SANITIZE)
        return() # a header is no other there than in the other builds
    endif()
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
        ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*/*.h)
    file(RELATIVE_PATH room ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    set(sources)
    foreach(header IN LISTS headers)
        string(REPLACE "/" "_" unit ${header})
        set(source ${CMAKE_CURRENT_BINARY_DIR}/header_check/${unit}.cpp)
        set(include "#include \"${room}/${header}\"\n")
        file(CONFIGURE OUTPUT ${source} CONTENT "${include}${include}")
        list(APPEND sources ${source})
    endforeach()
    add_library(${target}_header_check OBJECT ${sources})
    target_link_libraries(${target}_header_check PRIVATE ${target} recastor_settings)
endfunction()
