# Under the address sanitizer g++ 12 takes the states of a regular expression for uninitialised (GCC bug 105562).
set_source_files_properties(
  ${PROJECT_SOURCE_DIR}/tests/demohost/share_files.cpp ${PROJECT_SOURCE_DIR}/tests/demohost/output_test.cpp
  ${PROJECT_SOURCE_DIR}/tests/demohost/texts_test.cpp PROPERTIES COMPILE_OPTIONS
                                                                 $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)

target_compile_definitions(${target} PRIVATE NORVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
target_compile_definitions(demohost_tests PRIVATE DEMOHOST_TEST_SHARE="${PROJECT_SOURCE_DIR}/demohost/share")
# The rows of the record views, which the column table has to serve.
target_link_libraries(${target} PRIVATE norvik_module)

# Plays a script of the host against the built module, with the user's folders below a folder of the build; what stands
# there from an earlier run and would change the script goes first.
function(norvik_script name folder outdated)
  set(place ${CMAKE_CURRENT_BINARY_DIR}/scripts/${folder})
  file(MAKE_DIRECTORY ${place})
  add_test(NAME demohost.script.${name}
           COMMAND sh -c "rm -rf ${outdated}; exec \"$0\" \"$@\"" $<TARGET_FILE:demohost> --module $<TARGET_FILE:NorvikQry>
                   --data ${place}/data --config ${place}/config --desktop ${place}/desktop
                   --script ${PROJECT_SOURCE_DIR}/demohost/scripts/${name}.op --patience 20000
           WORKING_DIRECTORY ${place})
  set_tests_properties(demohost.script.${name} PROPERTIES TIMEOUT 120 ENVIRONMENT_MODIFICATION
                       "DISPLAY=unset:;WAYLAND_DISPLAY=unset:;QT_QPA_PLATFORM=unset:")
endfunction()

if(TARGET NorvikQry)
  file(GLOB scripts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/demohost/scripts/*.op)
  foreach(script IN LISTS scripts)
    get_filename_component(name ${script} NAME_WE)
    if(NOT name STREQUAL "next_day")
      norvik_script(${name} ${name} "config exports")
    endif()
  endforeach()
  # The next day finds what the day left behind, and so does a reader of its files.
  norvik_script(next_day day "")
  add_test(NAME demohost.script.day_files
           COMMAND /usr/bin/python3 ${CMAKE_CURRENT_SOURCE_DIR}/demohost/read_day_files.py
                   ${CMAKE_CURRENT_BINARY_DIR}/scripts/day/exports/day)
  set_tests_properties(demohost.script.day PROPERTIES FIXTURES_SETUP day)
  set_tests_properties(demohost.script.next_day demohost.script.day_files PROPERTIES FIXTURES_REQUIRED day)
endif()
