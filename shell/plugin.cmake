# norvik_plugin(<target>): the module library with its five exports and no other symbol.
function(norvik_plugin target)
  set(exports ${PROJECT_SOURCE_DIR}/shell/exports.map)
  add_library(${target} MODULE ${PROJECT_SOURCE_DIR}/shell/exports.cpp)
  set_target_properties(${target} PROPERTIES PREFIX "" LINK_DEPENDS ${exports})
  target_link_libraries(${target} PRIVATE norvik_settings norvik_module)
  target_link_options(${target} PRIVATE LINKER:--version-script=${exports} LINKER:-z,defs)
endfunction()

# Qt remembers addresses of the classes that it has seen; a host that unloads the module keeps its code mapped.
norvik_plugin(NorvikQry)
target_link_options(NorvikQry PRIVATE LINKER:-z,nodelete)

# The same library without that mark, so that the tests unload it in earnest.
if(NORVIK_BUILD_TESTS)
  norvik_plugin(NorvikQryUnloadable)
endif()
