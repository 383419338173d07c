# Compiler settings that hold for every target of ours.
add_library(norvik_settings INTERFACE)
target_compile_options(norvik_settings INTERFACE -Wall -Wextra -Wconversion -Werror)
# g++ 12 sees an overlap in "literal" + std::string once it optimises (GCC bug 105651).
target_compile_options(norvik_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(norvik_settings INTERFACE ${CMAKE_CURRENT_LIST_DIR}/..)

# norvik_sources(<variable> <folder>...): the C++ files of the folders, but for the exports, which only the library has.
function(norvik_sources variable)
  set(found)
  foreach(folder IN LISTS ARGN)
    file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/${folder}/*.h)
    list(APPEND found ${files})
  endforeach()
  list(FILTER found EXCLUDE REGEX "/shell/exports\\.cpp$")
  set(${variable} ${found} PARENT_SCOPE)
endfunction()

# norvik_library(<target> <SHARED|STATIC> <folder>...): a library of the files in the folders; empty if they have none.
function(norvik_library target kind)
  norvik_sources(sources ${ARGN})
  if(NOT sources)
    set(sources ${PROJECT_BINARY_DIR}/empty.cpp)
    file(TOUCH ${sources})
  endif()
  add_library(${target} ${kind} ${sources})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${target} PRIVATE norvik_settings)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
endfunction()

# norvik_exports(<target> <list>): a shared library out of which leaves what bears its export macro and is on the list.
function(norvik_exports target list)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
                                             LINK_DEPENDS ${list})
  target_link_options(${target} PRIVATE LINKER:--version-script=${list})
endfunction()

set(NORVIK_COMMON_HEADERS <QApplication> <QPointer> <QWidget> <algorithm> <functional> <map> <memory> <optional> <string>
    <vector>)

# norvik_precompile(<target> <header>...): parses the headers once for all C++ files of the target. Every file includes
# what it needs all the same: the preset "release" builds without.
function(norvik_precompile target)
  if(NORVIK_PRECOMPILE)
    list(TRANSFORM ARGN REPLACE "^<(.*)>$" "$<$<COMPILE_LANGUAGE:CXX>:<\\1$<ANGLE-R>>")
    target_precompile_headers(${target} PRIVATE ${ARGN})
    # g++ 12 forgets which of these headers are the system's, and reports the same bug in them as an overflow.
    target_compile_options(${target} PRIVATE
                           "$<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread>")
  endif()
endfunction()
