# How every target of Kelvo is compiled, and which folders it sees.
#
# Printed digits are the contract: no fast-math, and no contraction of a product and a sum into
# one rounding, so that every compiler and level of optimisation gives the same last digit. Nobody
# reads errno after a mathematical function; without it a root is one instruction and a sine and
# a cosine of one angle are one call, with the same results.

function(kelvo_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    # One set of objects serves the programs and libkelvo, which shows its C functions only.
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF
        POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    target_compile_options(${target} PRIVATE
        -ffp-contract=off -fno-math-errno -Wall -Wextra -Wconversion -Wshadow
        -Wnon-virtual-dtor -Wold-style-cast
        # clang has no such warnings. What this g++ says of restrict in an optimised build is about
        # its own std::string, and wrong.
        $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wduplicated-branches -Wno-restrict>)
    if(KELVO_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(KELVO_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${KELVO_SANITIZE}
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        # A look past the end of a list that still lies in somebody's memory is seen by these only.
        target_compile_definitions(${target} PRIVATE _GLIBCXX_ASSERTIONS)
        target_link_options(${target} PUBLIC -fsanitize=${KELVO_SANITIZE})
    endif()
endfunction()

# kelvo_may_include(folder FOLDER...): a row of the table in src/CMakeLists.txt.
function(kelvo_may_include folder)
    set_property(GLOBAL PROPERTY KELVO_SEES_${folder} ${ARGN})
endfunction()

# Each folder has an include root of its own, in which nothing but this folder is found. A target
# gets the roots that the table gives it, so an include that isn't in the table doesn't compile.
function(kelvo_include_root target folder)
    set(root ${CMAKE_BINARY_DIR}/include/${folder})
    if(NOT EXISTS ${root}/${folder})
        file(MAKE_DIRECTORY ${root})
        file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
    endif()
    target_include_directories(${target} PRIVATE ${root})
endfunction()

# Reading the headers of others takes longer than most sources, so eight share one reading. What stands
# in their unnamed namespaces needs a name of its own in the folder. That each source includes what it
# uses is seen by clang-tidy, which reads them one by one (scripts/checks/tidy).
function(kelvo_side_by_side target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
endfunction()

# kelvo_test_code(target): how tests, and what only they use, are compiled.
function(kelvo_test_code target)
    kelvo_compile_options(${target})
    kelvo_side_by_side(${target})
    if(KELVO_SANITIZE MATCHES "fuzzer-no-link")  # no fuzzer runs what stands here
        target_compile_options(${target} PRIVATE -fno-sanitize=fuzzer-no-link)
    endif()
endfunction()

# kelvo_folder(name SOURCES ...): one folder of src/, one library.
function(kelvo_folder name)
    cmake_parse_arguments(ARG "" "" "SOURCES" ${ARGN})
    add_library(kelvo_${name} STATIC ${ARG_SOURCES})
    kelvo_compile_options(kelvo_${name})
    if(KELVO_UNITY)
        kelvo_side_by_side(kelvo_${name})
    endif()
    if(name STREQUAL "desktop")
        kelvo_precompile(kelvo_desktop qt <QtWidgets>)
    else()
        kelvo_precompile(kelvo_${name} standard <algorithm> <array> <functional> <map>
            <memory> <optional> <span> <string> <string_view> <vector>)
    endif()
    kelvo_include_root(kelvo_${name} ${name})
    get_property(sees GLOBAL PROPERTY KELVO_SEES_${name})
    foreach(folder IN LISTS sees)
        kelvo_include_root(kelvo_${name} ${folder})
        target_link_libraries(kelvo_${name} PUBLIC kelvo_${folder})
    endforeach()
endfunction()

# kelvo_uses(target FOLDER...): a program, test or benchmark sees these folders, and what they see.
function(kelvo_uses target)
    foreach(folder IN LISTS ARGN)
        target_link_libraries(${target} PUBLIC kelvo_${folder})
        get_property(sees GLOBAL PROPERTY KELVO_SEES_${folder})
        foreach(seen IN LISTS folder sees)
            kelvo_include_root(${target} ${seen})
        endforeach()
    endforeach()
endfunction()

function(kelvo_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    kelvo_compile_options(${name})
    kelvo_uses(${name} ${ARG_USES})
endfunction()
