# The module's target, its test and its install; read once the engine's
# libraries and dicemill-cli are defined.
file(GLOB PYTHON_SOURCES CONFIGURE_DEPENDS python/*.cpp)
pybind11_add_module(dicemill_python MODULE NO_EXTRAS ${PYTHON_SOURCES})
set_target_properties(dicemill_python PROPERTIES OUTPUT_NAME dicemill
                      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/python)
target_link_libraries(dicemill_python PRIVATE dicemill_sim)

# pytest under the interpreter the module was built for, beside the CLI it
# compares itself with.
add_test(NAME PythonModule
         COMMAND ${Python3_EXECUTABLE} -m pytest -q -p no:cacheprovider ${CMAKE_CURRENT_SOURCE_DIR}/python/tests)
set_tests_properties(PythonModule PROPERTIES
  ENVIRONMENT "PYTHONPATH=${CMAKE_BINARY_DIR}/python;DICEMILL_CLI=$<TARGET_FILE:dicemill-cli>;DICEMILL_SOURCE_DIR=${CMAKE_CURRENT_SOURCE_DIR}")

# Debian's Python reads <prefix>/lib/python3.X/dist-packages under both /usr
# (the package) and /usr/local.
set(DICEMILL_PYTHON_DIR lib/python${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}/dist-packages CACHE STRING "Where `cmake --install` puts the Python module, under the prefix")
install(TARGETS dicemill_python LIBRARY DESTINATION ${DICEMILL_PYTHON_DIR})
# The install test looks for it there.
set(DICEMILL_PYTHON_INSTALLED ${DICEMILL_PYTHON_DIR}/$<TARGET_FILE_NAME:dicemill_python>)

# Strategies written in Python timed by an interpreter embedded in a
# benchmark of its own (dicemill_bench links no libpython), which imports the
# module built above.
if(DICEMILL_BENCH AND TARGET Python3::Python)
  find_package(benchmark REQUIRED)
  add_executable(dicemill_python_bench bench/python/strategy_bench.cpp)
  target_link_libraries(dicemill_python_bench PRIVATE pybind11::embed benchmark::benchmark)
  target_compile_definitions(dicemill_python_bench PRIVATE
    DICEMILL_PYTHON_MODULE_DIR="$<TARGET_FILE_DIR:dicemill_python>" DICEMILL_SOURCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  add_dependencies(dicemill_python_bench dicemill_python)
  # One short take of each, so that a build that cannot embed or import
  # fails a test rather than the next person timing it.
  add_test(NAME PythonBenchmarkRuns COMMAND dicemill_python_bench --benchmark_min_time=0.01)
endif()
