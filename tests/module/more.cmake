# The built library, loaded through its C boundary against the fake host.
target_sources(module_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/host/fake_host.cpp)
add_dependencies(module_tests NorvikQry NorvikQryUnloadable)
target_compile_definitions(module_tests PRIVATE NORVIK_QRY="$<TARGET_FILE:NorvikQry>"
                                                NORVIK_QRY_UNLOADABLE="$<TARGET_FILE:NorvikQryUnloadable>")
