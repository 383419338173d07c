# Compiler settings that hold for every target of ours. A warning is an error here, but not in a project that takes this
# one in.
add_library(norvik_settings INTERFACE)
target_compile_options(norvik_settings INTERFACE -Wall -Wextra -Wconversion $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>)
# g++ 12 sees an overlap in "literal" + std::string once it optimises (GCC bug 105651).
target_compile_options(norvik_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(norvik_settings INTERFACE ${CMAKE_CURRENT_LIST_DIR}/..)

# norvik_find_sources(<variable> <folder>...): the C++ files in and below the folders, but for those that only the plug-in
# and the demonstration host themselves have: the five exports and the main function.
function(norvik_find_sources variable)
  list(TRANSFORM ARGN REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/\\1/*.cpp;${PROJECT_SOURCE_DIR}/\\1/*.h" OUTPUT_VARIABLE patterns)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS ${patterns})
  list(FILTER found EXCLUDE REGEX "/(shell/exports|demohost/main)\\.cpp$")
  set(${variable} ${found} PARENT_SCOPE)
endfunction()

# norvik_add_library(<target> <SHARED|STATIC> <folder>...): a library of the files in and below the folders.
function(norvik_add_library target kind)
  norvik_find_sources(sources ${ARGN})
  add_library(${target} ${kind} ${sources})
  target_link_libraries(${target} PRIVATE norvik_settings)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

# norvik_exports(<target> <list>): a shared library out of which leaves what bears its export macro and is on the list.
function(norvik_exports target list)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
                                             LINK_DEPENDS ${list})
  target_link_options(${target} PRIVATE LINKER:--version-script=${list})
endfunction()

set(NORVIK_COMMON_HEADERS <QApplication> <QPointer> <QWidget> <algorithm> <functional> <map> <memory> <optional> <string>
    <vector>)

# norvik_precompile_headers(<target> <header>...): parses the headers once for all C++ files of the target. Every file
# includes what it needs all the same: the preset "release" builds without.
function(norvik_precompile_headers target)
  if(NORVIK_PRECOMPILE)
    list(TRANSFORM ARGN REPLACE "^<(.*)>$" "$<$<COMPILE_LANGUAGE:CXX>:<\\1$<ANGLE-R>>")
    target_precompile_headers(${target} PRIVATE ${ARGN})
    # g++ 12 forgets which of these headers are the system's, and reports the same bug in them as an overflow.
    target_compile_options(${target} PRIVATE
                           "$<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread>")
  endif()
endfunction()
