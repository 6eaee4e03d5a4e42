# Precompiled headers of others, for clang only (KELVO_PRECOMPILE). They halve what a small source
# takes. (clang-tidy loses by them, since it walks through all that they hold.) g++ gains a tenth, and
# then takes headers of the system for ours, with warnings of their insides; built without, it also
# sees whether each source names what it uses. Our own headers are never precompiled: each would make
# everything again.

# kelvo_precompile(target FAMILY header...): the first target of a family, which are those compiled
# with the same flags, compiles the headers for all.
function(kelvo_precompile target family)
    if(NOT KELVO_PRECOMPILE)
        return()
    endif()
    get_property(first GLOBAL PROPERTY KELVO_PRECOMPILED_${family})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
        set_property(GLOBAL PROPERTY KELVO_PRECOMPILED_${family} ${target})
    endif()
    # A stamp of time would keep a compiler cache from knowing it again.
    target_compile_options(${target} PRIVATE
        $<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>)
endfunction()
