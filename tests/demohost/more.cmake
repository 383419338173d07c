target_compile_definitions(${target} PRIVATE NORVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
