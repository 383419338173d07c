# The header in the hands of a C compiler, and host libraries as shared objects.
target_sources(platform_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/platform/c_host.c)
set_source_files_properties(${CMAKE_CURRENT_SOURCE_DIR}/platform/c_host.c PROPERTIES COMPILE_OPTIONS -std=c11)

add_library(inner_host_library SHARED ${CMAKE_CURRENT_SOURCE_DIR}/platform/fixtures/inner_library.c)
add_library(outer_host_library MODULE ${CMAKE_CURRENT_SOURCE_DIR}/platform/fixtures/outer_library.c)
target_link_libraries(outer_host_library PRIVATE inner_host_library)
add_dependencies(platform_tests outer_host_library)
target_compile_definitions(platform_tests PRIVATE OUTER_HOST_LIBRARY="$<TARGET_FILE:outer_host_library>")
