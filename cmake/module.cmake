norvik_add_library(norvik_toolkit STATIC toolkit)
set_target_properties(norvik_toolkit PROPERTIES AUTOMOC ON)
norvik_precompile_headers(norvik_toolkit ${NORVIK_COMMON_HEADERS})
target_compile_definitions(norvik_toolkit PUBLIC QT_NO_KEYWORDS)
target_link_libraries(norvik_toolkit PUBLIC norvik_platform corvane Qt6::Widgets PRIVATE PkgConfig::XCB Threads::Threads)

# The whole module but for its exports, so that tests can link it.
norvik_add_library(norvik_module STATIC host dialogs framework repository shell)
set_target_properties(norvik_module PROPERTIES AUTOMOC ON)
norvik_precompile_headers(norvik_module ${NORVIK_COMMON_HEADERS})
target_link_libraries(norvik_module PUBLIC corvane norvik_toolkit)

# norvik_add_plugin(<target>): the plug-in with its five exports and no other symbol.
function(norvik_add_plugin target)
  set(exports ${PROJECT_SOURCE_DIR}/shell/exports.map)
  add_library(${target} MODULE ${PROJECT_SOURCE_DIR}/shell/exports.cpp)
  set_target_properties(${target} PROPERTIES PREFIX "" LINK_DEPENDS ${exports})
  target_link_libraries(${target} PRIVATE norvik_settings norvik_module)
  target_link_options(${target} PRIVATE LINKER:--version-script=${exports} LINKER:-z,defs)
endfunction()

# Qt remembers addresses of the classes that it has seen; a host that unloads the module keeps its code mapped.
norvik_add_plugin(NorvikQry)
target_link_options(NorvikQry PRIVATE LINKER:-z,nodelete)
