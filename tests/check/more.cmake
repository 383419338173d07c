# The check runs in the demonstration host, against modules that are each broken in one way. They share one object; each
# is told its fault by another.
set(modules ${CMAKE_CURRENT_BINARY_DIR}/broken_modules)
add_library(broken_module OBJECT ${CMAKE_CURRENT_LIST_DIR}/broken/module.cpp)
target_link_libraries(broken_module PRIVATE norvik_settings norvik_platform corvane Qt6::Widgets)
# The check has to find the faults, not a sanitizer.
target_compile_options(broken_module PRIVATE -fno-sanitize=all)

# Two faults are of the list of exports itself.
file(READ ${PROJECT_SOURCE_DIR}/shell/exports.map exports)
string(REPLACE "FreeBuff;" "" fewer "${exports}")
string(REPLACE "FreeBuff;" "FreeBuff; Sixth;" more "${exports}")
file(CONFIGURE OUTPUT ${modules}/missing_export.map CONTENT "${fewer}" @ONLY)
file(CONFIGURE OUTPUT ${modules}/sixth_export.map CONTENT "${more}" @ONLY)

foreach(fault IN ITEMS
        none missing_export sixth_export load_crash start_result start_throws keeps_buffer missing_swallowed
        missing_wrong_key missing_foreign missing_crash menu_no_xml menu_other_section menu_empty menu_shared
        menu_ignores_host_buffer menu_overrun free_null_crash unstarted_pick_ignored request_swallowed request_hangs
        unknown_opens unknown_throws second_window replaced_window no_reopening modal_message open_silent close_silent
        close_keeps_window handle_stays release_unstarted_crash release_twice_crash release_exits
        leaves_window_of_failed_start leaves_open_window leaves_closed_window loses_memory loses_files loses_threads
        goes_on_after_release falls_after_dialog)
  file(CONFIGURE OUTPUT ${modules}/${fault}.c CONTENT "const char norvik_fault[] = \"${fault}\";\n" @ONLY)
  set(exports ${PROJECT_SOURCE_DIR}/shell/exports.map)
  if(EXISTS ${modules}/${fault}.map)
    set(exports ${modules}/${fault}.map)
  endif()
  add_library(broken_${fault} MODULE ${modules}/${fault}.c)
  set_target_properties(broken_${fault} PROPERTIES PREFIX "" LINKER_LANGUAGE CXX LIBRARY_OUTPUT_DIRECTORY ${modules})
  target_link_libraries(broken_${fault} PRIVATE broken_module norvik_platform corvane Qt6::Widgets)
  target_link_options(broken_${fault} PRIVATE LINKER:--version-script=${exports})
  add_dependencies(${target} broken_${fault})
endforeach()
# Its threads run on in its code.
target_link_options(broken_loses_threads PRIVATE LINKER:-z,nodelete)

add_dependencies(${target} demohost NorvikQry)
target_compile_definitions(${target} PRIVATE DEMOHOST="$<TARGET_FILE:demohost>" NORVIK_QRY="$<TARGET_FILE:NorvikQry>"
                                             BROKEN_MODULES="${modules}"
                                             DEMOHOST_SHARE="${PROJECT_SOURCE_DIR}/demohost/share")
