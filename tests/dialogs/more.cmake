target_link_libraries(dialogs_tests PRIVATE PkgConfig::XCB Threads::Threads)
