# The library: Numlab.Sig5d.dll with its import libraries, or libNumlab.Sig5d.so; linux32 gets a static one for tests.
add_library(sig5d_product INTERFACE)
target_include_directories(sig5d_product INTERFACE include src ${SIG5D_GENERATED})
target_compile_options(
    sig5d_product
    INTERFACE ${SIG5D_COMMON_FLAGS}
              $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti -fno-threadsafe-statics -fvisibility=hidden>
              -ffunction-sections -fdata-sections -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -Wall -Wextra
              -fstack-protector-strong -fno-ident)
if(SIG5D_SANITIZE)
    # Callers may pass arrays at any address, so that misaligned access is intended here, and every processor allows it.
    add_compile_options(-fsanitize=${SIG5D_SANITIZE} -fno-sanitize=alignment -fno-sanitize-recover=all
                        -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${SIG5D_SANITIZE})
endif()
option(SIG5D_COVERAGE "Count which lines and branches run" OFF)
if(SIG5D_COVERAGE)
    # Hardly optimised, so that a branch of the source is one of the code; but registers are left clean for callers.
    target_compile_options(sig5d_product INTERFACE --coverage -O1 -fexpensive-optimizations)
    add_link_options(--coverage)
endif()

set(frame_sources "")
foreach(
    source
    ${SIG5D_PLAIN_SOURCES}
    frame/this_processor.cpp
    frame/cpuid.cpp
    frame/features.cpp
    frame/cache_size.cpp
    frame/core_count.cpp
    frame/frequency.cpp
    frame/detected.cpp
    kernel/libm_trig.cpp
    kernel/libm_exp.cpp
    signal/processing/correlation/layout.cpp
    signal/processing/dct/spec.cpp
    signal/processing/dct/tables.cpp
    signal/processing/fft/mixed_plan.cpp
    signal/processing/fft/plan.cpp)
    list(APPEND frame_sources ${CMAKE_SOURCE_DIR}/src/${source})
endforeach()
list(REMOVE_DUPLICATES frame_sources)

# What is compiled once; the kernels are compiled once per body.
add_library(sig5d_frame OBJECT ${frame_sources} ${SIG5D_GENERATED}/adapters.cpp ${SIG5D_GENERATED}/dispatch.S)
set_source_files_properties(${SIG5D_GENERATED}/dispatch.S PROPERTIES OBJECT_DEPENDS ${CMAKE_SOURCE_DIR}/src/frame/stub.inc)
target_link_libraries(sig5d_frame PRIVATE sig5d_product)
set(SIG5D_OBJECTS $<TARGET_OBJECTS:sig5d_frame>)
sig5d_add_variants(SIG5D_OBJECTS)

if(SIG5D_STATIC)
    add_library(sig5d STATIC ${SIG5D_OBJECTS})
    add_library(sig5d_objects ALIAS sig5d)
else()
    add_library(sig5d SHARED ${SIG5D_OBJECTS})
    # The same objects as an archive, for tests of what no export shows.
    add_library(sig5d_objects STATIC EXCLUDE_FROM_ALL ${SIG5D_OBJECTS})
    set_target_properties(
        sig5d_objects PROPERTIES LINKER_LANGUAGE CXX ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_include_directories(sig5d_objects INTERFACE include)
endif()
set_target_properties(sig5d PROPERTIES LINKER_LANGUAGE CXX)
target_include_directories(sig5d INTERFACE include)

if(WIN32)
    include(${CMAKE_CURRENT_LIST_DIR}/library_windows.cmake)
elseif(NOT SIG5D_STATIC)
    set_target_properties(
        sig5d PROPERTIES OUTPUT_NAME Numlab.Sig5d POSITION_INDEPENDENT_CODE ON LIBRARY_OUTPUT_DIRECTORY
                                                                               ${CMAKE_BINARY_DIR})
    foreach(part frame ${SIG5D_VARIANTS})
        if(TARGET sig5d_${part})
            set_target_properties(sig5d_${part} PROPERTIES POSITION_INDEPENDENT_CODE ON)
        endif()
    endforeach()
    target_link_options(
        sig5d PRIVATE -Wl,--version-script=${SIG5D_GENERATED}/exports.map -Wl,-Bsymbolic -Wl,--gc-sections
        -Wl,-z,relro,-z,now,-z,noexecstack -Wl,--build-id=none -Wl,-Map,${CMAKE_BINARY_DIR}/Numlab.Sig5d.map)
    if(NOT SIG5D_SANITIZE)
        # Linked as C: plain functions and plain records need no C++ runtime.
        set_target_properties(sig5d PROPERTIES LINKER_LANGUAGE C)
        target_link_options(sig5d PRIVATE -Wl,-z,defs)
    endif()
endif()
