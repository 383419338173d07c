# The host of docs/host-guide.md, as a program and inside its test.
add_executable(minimal_host ${PROJECT_SOURCE_DIR}/docs/minimal_host.c ${PROJECT_SOURCE_DIR}/docs/minimal_host_main.cpp)
target_link_libraries(minimal_host PRIVATE norvik_settings norvik_platform corvane Qt6::Widgets ${CMAKE_DL_LIBS})

target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/docs/minimal_host.c)
target_compile_definitions(${target} PRIVATE NORVIK_MODULE="$<TARGET_FILE:NorvikQry>")
add_dependencies(${target} NorvikQry)
