# The Qt desktop program `dicemill`: its screens in a library beside the
# command line's, the program, its offscreen tests and the screenshot check.

collect_sources(ui UI_TEST_SOURCES)
add_library(dicemill_ui STATIC ${ui_LIBRARY} ui/resources.qrc)
set_target_properties(dicemill_ui PROPERTIES AUTOMOC ON AUTORCC ON)
target_link_libraries(dicemill_ui PUBLIC dicemill_sim Qt6::Widgets Qt6::Multimedia Qt6::PrintSupport)
# The version for About, and the source tree, where a program run from a
# build finds its samples, sounds and guide.
target_compile_definitions(dicemill_ui PUBLIC DICEMILL_VERSION="${PROJECT_VERSION}"
                           DICEMILL_SOURCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}")

add_executable(dicemill_app ui/main.cpp)
set_target_properties(dicemill_app PROPERTIES OUTPUT_NAME dicemill)
target_link_libraries(dicemill_app PRIVATE dicemill_ui)

# Qt's tests run without a display; the test main picks the offscreen platform.
add_executable(dicemill_ui_tests ${UI_TEST_SOURCES})
set_target_properties(dicemill_ui_tests PROPERTIES AUTOMOC ON)
target_link_libraries(dicemill_ui_tests PRIVATE dicemill_ui dicemill_testkit Qt6::Test GTest::gtest)
target_include_directories(dicemill_ui_tests PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/generated)
gtest_discover_tests(dicemill_ui_tests DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# Every screen the screenshot tool knows is drawn, without a display.
add_test(NAME DesktopScreenshots
         COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:dicemill_app> -DWORK=${CMAKE_CURRENT_BINARY_DIR}/screenshots
                 -P ${CMAKE_CURRENT_SOURCE_DIR}/cmake/screenshots_test.cmake)

# What the window costs a live run, against the same run headless.
if(DICEMILL_BENCH)
  find_package(benchmark REQUIRED)
  add_executable(dicemill_ui_bench bench/desktop/live_run_bench.cpp)
  target_link_libraries(dicemill_ui_bench PRIVATE dicemill_ui Qt6::Test benchmark::benchmark)
endif()
