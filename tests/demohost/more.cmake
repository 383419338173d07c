target_compile_definitions(${target} PRIVATE NORVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
target_compile_definitions(demohost_tests PRIVATE DEMOHOST_TEST_SHARE="${PROJECT_SOURCE_DIR}/demohost/share")
# The rows of the record views, which the column table has to serve.
target_link_libraries(${target} PRIVATE norvik_module)
