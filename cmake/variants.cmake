# How the variants of src/variants.txt are compiled (the generator hands them on as SIG5D_VARIANTS, SIG5D_FLAGS_*,
# SIG5D_KERNEL_SOURCES and SIG5D_BODIES_*): each *.kernels.cpp once per body, with the flags of its variant.

# For all code of the product. No fused multiply-add and no x87 arithmetic, so that all variants and platforms give the
# same bits; hosts align a 32-bit stack to 4 bytes only, so that functions that need more realign it themselves. Loops
# that copy or fill stay loops, since calls of the C runtime instead would be slow on Windows; and they begin at a cache
# line, without which the same store loop ran at 50 or at 62 bytes per cycle, as chance had it. px is to be small, since
# beside it there are faster bodies; but with -Os GCC 12 loses the upper half of a magnitude in 32-bit code. Loops over
# single elements are what kernels leave to the ends of arrays, and are not worth a vectorised copy each, which made the
# library 3 % larger; where single elements are copied or converted by the thousand, they are.
set(optimise -O3 -fno-tree-loop-vectorize -falign-loops=64)
if(SIG5D_SANITIZE) # whose checks in every loop took ten times as long to optimise as the loops
    set(optimise -O1 -fexpensive-optimizations -falign-loops=64) # the latter clears the upper halves of vector registers
endif()
set(optimise_small -O2 -falign-functions=1 -falign-jumps=1 -falign-loops=1)
set(SIG5D_COMMON_FLAGS "$<IF:$<BOOL:$<TARGET_PROPERTY:SIG5D_SMALL>>,${optimise_small},${optimise}>"
    -msse2 -mfpmath=sse -ffp-contract=off -fno-math-errno -mstackrealign)
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL Clang) # which builds for fuzzing only, and has no such option
    # Records are copied in registers of 16 bytes: GCC 12 clears the upper halves of longer ones only in functions that
    # have vectors of their own.
    list(APPEND SIG5D_COMMON_FLAGS -fno-tree-loop-distribute-patterns -mmove-max=128 -mstore-max=128)
endif()

# sig5d_add_variants(<list>): an object library per variant, each file of SIG5D_KERNEL_SOURCES in each of its bodies;
# their objects are added to the list.
function(sig5d_add_variants list)
    if(NOT SIG5D_SANITIZE)
        # (Of find_indexes GCC 12 otherwise makes AVX2 code that returns with the upper halves of registers in use.)
        set(vectorised ${SIG5D_KERNEL_SOURCES})
        list(FILTER vectorised INCLUDE REGEX "^signal/processing/|/find_|/product")
        list(FILTER vectorised EXCLUDE REGEX "/median/|/sampling/|/sorting/") # vectors of their own, and ends of arrays
        list(TRANSFORM vectorised PREPEND ${CMAKE_SOURCE_DIR}/src/)
        set_source_files_properties(${vectorised} PROPERTIES COMPILE_OPTIONS
            "$<$<NOT:$<STREQUAL:$<TARGET_PROPERTY:NAME>,sig5d_px>>:-ftree-loop-vectorize>")
        # Its loops are written in vectors, and most of its code is beside them: half the size and as fast.
        set_source_files_properties(${CMAKE_SOURCE_DIR}/src/signal/processing/sorting/sort.kernels.cpp
                                    PROPERTIES COMPILE_OPTIONS "-O2;-fno-tree-vectorize;-falign-loops=32")
    endif()
    set(level 0)
    foreach(variant ${SIG5D_VARIANTS})
        set(sources "")
        foreach(source ${SIG5D_KERNEL_SOURCES})
            string(REPLACE "/" "_" key ${source})
            if(SIG5D_BODIES_${key} STREQUAL px) # which then serves every processor
                set_source_files_properties(${CMAKE_SOURCE_DIR}/src/${source} PROPERTIES COMPILE_OPTIONS "${optimise}")
            endif()
            if(variant IN_LIST SIG5D_BODIES_${key})
                list(APPEND sources ${CMAKE_SOURCE_DIR}/src/${source})
            endif()
        endforeach()
        if(sources)
            add_library(sig5d_${variant} OBJECT ${sources})
            target_link_libraries(sig5d_${variant} PRIVATE sig5d_product)
            target_compile_definitions(sig5d_${variant} PRIVATE SIG5D_VARIANT=${variant} SIG5D_LEVEL=${level})
            target_compile_options(sig5d_${variant} PRIVATE ${SIG5D_FLAGS_${variant}})
            if(variant STREQUAL px AND NOT SIG5D_SANITIZE)
                set_target_properties(sig5d_${variant} PROPERTIES SIG5D_SMALL ON)
            endif()
            if(SIG5D_SANITIZE STREQUAL thread AND NOT variant STREQUAL px)
                # px has the accesses of every source; the others are what the first calls choose from.
                target_compile_options(sig5d_${variant} PRIVATE -fno-sanitize=thread -O0)
            endif()
            list(APPEND ${list} $<TARGET_OBJECTS:sig5d_${variant}>)
        endif()
        math(EXPR level "${level} + 1")
    endforeach()
    set(${list} ${${list}} PARENT_SCOPE)
endfunction()
