# What makes the DLL lean and reproducible: its own entry point instead of the start-up objects (no static
# constructors, no thread callbacks), a fixed image base and no timestamp, imports of kernel32 and the C runtime only.
enable_language(RC)
target_sources(sig5d_frame PRIVATE ${CMAKE_SOURCE_DIR}/src/frame/windows/entry_point.cpp)
configure_file(${CMAKE_SOURCE_DIR}/src/frame/windows/version.rc.in ${SIG5D_GENERATED}/version.rc @ONLY)
target_sources(sig5d PRIVATE ${SIG5D_GENERATED}/version.rc)

target_compile_options(sig5d_product INTERFACE -mstack-protector-guard=global -fno-asynchronous-unwind-tables)
set_target_properties(sig5d PROPERTIES PREFIX "" OUTPUT_NAME Numlab.Sig5d IMPORT_PREFIX "lib" IMPORT_SUFFIX ".dll.a"
                                       RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
                                       ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/link)
target_link_options(
    sig5d PRIVATE -nostartfiles -nostdlib -Wl,-e,_sig5d_entry_point@12 -Wl,--image-base,0x63c00000
    -Wl,--no-insert-timestamp -Wl,--dynamicbase,--nxcompat,--no-seh -Wl,--disable-auto-import -Wl,--gc-sections -s
    -Wl,-Map,${CMAKE_BINARY_DIR}/Numlab.Sig5d.map
    -Wl,-T,${CMAKE_CURRENT_LIST_DIR}/no_unwind_tables.ld ${SIG5D_GENERATED}/exports_link.def)
target_link_libraries(sig5d PRIVATE gcc msvcrt kernel32)
add_custom_command(
    TARGET sig5d
    POST_BUILD
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/seal_image.py $<TARGET_FILE:sig5d>
    VERBATIM)

# Import libraries are made from the decorated names that compilers of both families refer to (-k takes the decoration
# off again); the linker's own would offer undecorated names only.
find_program(SIG5D_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 REQUIRED)
add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/libNumlab.Sig5d.dll.a ${CMAKE_BINARY_DIR}/Numlab.Sig5d.lib
    # In the build folder and with a plain name, because symbols in the library are made from the path given.
    COMMAND ${CMAKE_DLLTOOL} -k --deterministic-libraries -t sig5d_imp -d ${SIG5D_GENERATED}/exports_import.def -l
            libNumlab.Sig5d.dll.a
    COMMAND ${SIG5D_LLVM_DLLTOOL} -k -m i386 -d ${SIG5D_GENERATED}/exports_import.def -l Numlab.Sig5d.lib
    COMMAND ${CMAKE_COMMAND} -E copy ${SIG5D_GENERATED}/Numlab.Sig5d.def ${CMAKE_BINARY_DIR}/Numlab.Sig5d.def
    DEPENDS ${SIG5D_GENERATED}/exports_import.def
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
    VERBATIM)
add_custom_target(sig5d_import_libraries ALL DEPENDS ${CMAKE_BINARY_DIR}/libNumlab.Sig5d.dll.a)

# What tests and examples link: the DLL through the import library that users get.
add_library(sig5d_import INTERFACE)
target_include_directories(sig5d_import INTERFACE include)
target_link_libraries(sig5d_import INTERFACE ${CMAKE_BINARY_DIR}/libNumlab.Sig5d.dll.a)
add_dependencies(sig5d_import sig5d sig5d_import_libraries)
