# How every target of Kelvo is compiled.
#
# Printed digits are the contract: no fast-math, and no contraction of a product and a sum into
# one rounding, so that every compiler and level of optimisation gives the same last digit. Nobody
# reads errno behind a mathematical function; without it a root is one instruction and a sine and
# a cosine of one angle are one call, with the same results.

function(kelvo_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE
        -ffp-contract=off -fno-math-errno -Wall -Wextra -Wconversion -Wshadow)
    if(KELVO_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(KELVO_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${KELVO_SANITIZE}
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${KELVO_SANITIZE})
    endif()
endfunction()

# kelvo_folder(name SOURCES ... DEPENDS ...): one folder of src/, one library.
function(kelvo_folder name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(kelvo_${name} STATIC ${ARG_SOURCES})
    target_include_directories(kelvo_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    kelvo_compile_options(kelvo_${name})
    foreach(folder IN LISTS ARG_DEPENDS)
        target_link_libraries(kelvo_${name} PUBLIC kelvo_${folder})
    endforeach()
endfunction()

function(kelvo_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    kelvo_compile_options(${name})
    foreach(folder IN LISTS ARG_DEPENDS)
        target_link_libraries(${name} PRIVATE kelvo_${folder})
    endforeach()
endfunction()
