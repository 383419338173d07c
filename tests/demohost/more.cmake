target_compile_definitions(${target} PRIVATE NORVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
target_compile_definitions(demohost_tests PRIVATE DEMOHOST_TEST_SHARE="${PROJECT_SOURCE_DIR}/demohost/share")
# The rows of the record views, which the column table has to serve.
target_link_libraries(${target} PRIVATE norvik_module)

# Each script of the host is played against the built module, with a user's folders of its own.
if(TARGET NorvikQry)
  add_dependencies(demohost_tests NorvikQry)
  target_compile_definitions(demohost_tests PRIVATE DEMOHOST_TEST_MODULE="$<TARGET_FILE:NorvikQry>")
  file(GLOB scripts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/demohost/scripts/*.op)
  foreach(script IN LISTS scripts)
    get_filename_component(name ${script} NAME_WE)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/scripts/${name})
    file(MAKE_DIRECTORY ${folder})
    add_test(NAME demohost.script.${name}
             COMMAND sh -c "rm -rf config exports && exec \"$0\" \"$@\"" $<TARGET_FILE:demohost> --module $<TARGET_FILE:NorvikQry> --data ${folder}/data --config ${folder}/config --desktop
                     ${folder}/desktop --script ${script} --patience 20000
             WORKING_DIRECTORY ${folder})
    set_tests_properties(demohost.script.${name} PROPERTIES TIMEOUT 120 ENVIRONMENT_MODIFICATION
                         "DISPLAY=unset:;WAYLAND_DISPLAY=unset:;QT_QPA_PLATFORM=unset:")
  endforeach()
endif()
