# The processor variants and their flags: the only place that knows them. Each *.kernels.cpp is compiled once per body;
# which bodies a file has stands in its source line in api/ (a variant without one uses the nearest lower).
set(SIG5D_VARIANTS px w7 s8 p8 g9 h9)

# h9 means AVX2 with the half-precision conversions, a feature of its own that every processor with AVX2 has.
# px is the reference that every other body must equal bit for bit: the same source, compiled without vectorisation.
set(SIG5D_FLAGS_px -fno-tree-vectorize)
set(SIG5D_FLAGS_w7 "")
set(SIG5D_FLAGS_s8 -mssse3)
set(SIG5D_FLAGS_p8 -msse4.2)
set(SIG5D_FLAGS_g9 -mavx)
set(SIG5D_FLAGS_h9 -mavx2 -mf16c)

# For all code of the product. No fused multiply-add and no x87 arithmetic, so that all variants and platforms give the
# same bits; hosts align a 32-bit stack to 4 bytes only, so that functions that need more realign it themselves. Loops
# that copy or fill stay loops, since calls of the C runtime instead would be slow on Windows; and they begin at a cache
# line, without which the same store loop ran at 50 or at 62 bytes per cycle, as chance had it.
set(optimise -O3)
if(SIG5D_SANITIZE) # whose checks in every loop took ten times as long to optimise as the loops
    set(optimise -O1)
endif()
set(SIG5D_COMMON_FLAGS ${optimise} -msse2 -mfpmath=sse -ffp-contract=off -fno-math-errno -mstackrealign
    -fno-tree-loop-distribute-patterns -falign-loops=64)

# sig5d_add_variants(<target>): an object library per variant, each file of SIG5D_KERNEL_SOURCES in each of its bodies.
function(sig5d_add_variants target)
    set(level 0)
    foreach(variant ${SIG5D_VARIANTS})
        set(sources "")
        foreach(source ${SIG5D_KERNEL_SOURCES})
            string(REPLACE "/" "_" key ${source})
            if(variant IN_LIST SIG5D_BODIES_${key})
                list(APPEND sources ${CMAKE_SOURCE_DIR}/src/${source})
            endif()
        endforeach()
        if(sources)
            add_library(sig5d_${variant} OBJECT ${sources})
            target_link_libraries(sig5d_${variant} PRIVATE sig5d_product)
            target_compile_definitions(sig5d_${variant} PRIVATE SIG5D_VARIANT=${variant} SIG5D_LEVEL=${level})
            target_compile_options(sig5d_${variant} PRIVATE ${SIG5D_FLAGS_${variant}})
            if(SIG5D_SANITIZE STREQUAL thread AND NOT variant STREQUAL px)
                # px has the accesses of every source; the others are what the first calls choose from.
                target_compile_options(sig5d_${variant} PRIVATE -fno-sanitize=thread -O0)
            endif()
            target_sources(${target} PRIVATE $<TARGET_OBJECTS:sig5d_${variant}>)
        endif()
        math(EXPR level "${level} + 1")
    endforeach()
endfunction()
