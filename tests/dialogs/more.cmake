find_package(Qt6 REQUIRED COMPONENTS Test)
target_link_libraries(dialogs_tests PRIVATE PkgConfig::XCB Threads::Threads Qt6::Test)
