# The registry with another description: small functions in the test program itself, which the Windows library's exports
# do not contain.
if(NOT WIN32 AND NOT SIG5D_STATIC)
    set(models ${CMAKE_BINARY_DIR}/models)
    file(GLOB description CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/registry/api/*)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${description})
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env PYTHONDONTWRITEBYTECODE=1 ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/apigen
                --api ${CMAKE_CURRENT_SOURCE_DIR}/registry/api --variants ${CMAKE_SOURCE_DIR}/src/variants.txt
                --out ${models}
        COMMAND_ERROR_IS_FATAL ANY)
    get_target_property(registry sig5d_registry SOURCES)
    list(FILTER registry EXCLUDE REGEX "/registry[.]cpp$")
    list(TRANSFORM registry PREPEND ${CMAKE_SOURCE_DIR}/)
    add_executable(models_test registry/models_test.cpp registry/models.cpp variants/streams.cpp support/arena.cpp
                   support/stage.cpp ${models}/registry.cpp ${registry})
    target_include_directories(
        models_test PRIVATE . registry ${models} ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR}/tools/registry)
    target_compile_options(models_test PRIVATE -O2 -Wall -Wextra -ffp-contract=off -msse2 -mfpmath=sse)
    target_link_libraries(models_test PRIVATE sig5d GTest::gtest GTest::gtest_main)
    target_link_options(models_test PRIVATE -rdynamic)
    set_target_properties(models_test PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
    add_test(NAME ${build}/models COMMAND models_test)
endif()
