# Writes the boundary (entry shells, tables, stubs, adapters, export definitions, registry) from api/ at configure time;
# a change in api/ or in the generator configures again.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
set(SIG5D_GENERATED ${CMAKE_BINARY_DIR}/gen)
file(GLOB SIG5D_DESCRIPTION CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/api/*.api ${CMAKE_SOURCE_DIR}/api/ordinals.txt ${CMAKE_SOURCE_DIR}/src/variants.txt
     ${CMAKE_SOURCE_DIR}/tools/apigen/*.py)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${SIG5D_DESCRIPTION})
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env PYTHONDONTWRITEBYTECODE=1 ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/apigen
            --api ${CMAKE_SOURCE_DIR}/api --variants ${CMAKE_SOURCE_DIR}/src/variants.txt --out ${SIG5D_GENERATED}
    COMMAND_ERROR_IS_FATAL ANY)
include(${SIG5D_GENERATED}/sources.cmake)
