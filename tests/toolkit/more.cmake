find_package(Qt6 REQUIRED COMPONENTS Test)
target_link_libraries(${target} PRIVATE Qt6::Test)
