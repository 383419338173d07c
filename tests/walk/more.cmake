target_compile_definitions(${target} PRIVATE
  WALK_SOURCES="${PROJECT_SOURCE_DIR}" WALK_SCREEN="${CMAKE_CURRENT_SOURCE_DIR}/walk/screen.json")
# Under the address sanitizer g++ 12 takes the states of a regular expression for uninitialised (GCC bug 105562).
set_source_files_properties(${PROJECT_SOURCE_DIR}/tests/walk/walk_test.cpp PROPERTIES
  COMPILE_OPTIONS $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
