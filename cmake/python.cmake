# The Python module `dicemill` (python/), where pybind11 and Debian's Python
# are found. It is built into build/python, so that
#   PYTHONPATH=build/python /usr/bin/python3 -c "import dicemill"
# works from the build tree, and installed where Debian's Python looks.
option(DICEMILL_PYTHON "Build the Python module when pybind11 and Python are found" ON)
# An instrumented module would need the sanitizers' runtime loaded into the
# interpreter before anything else: the sanitized builds leave it out.
if(NOT DICEMILL_PYTHON OR DICEMILL_FUZZ OR DICEMILL_SANITIZE)
  set(DICEMILL_PYTHON OFF)
  return()
endif()
# Debian's interpreter, whose packages (numpy, pytest) the module is tested
# with, rather than whichever python3 stands first on PATH.
if(NOT Python3_EXECUTABLE AND EXISTS /usr/bin/python3)
  set(Python3_EXECUTABLE /usr/bin/python3)
endif()
# The embedding library is only for dicemill_python_bench.
find_package(Python3 COMPONENTS Interpreter Development.Module OPTIONAL_COMPONENTS Development.Embed QUIET)
if(Python3_FOUND)
  find_package(pybind11 CONFIG QUIET)
endif()
if(NOT Python3_FOUND OR NOT pybind11_FOUND)
  message(STATUS "pybind11 or Python 3 not found: building without the Python module")
  set(DICEMILL_PYTHON OFF)
  return()
endif()
# The engine's static libraries go into a shared module.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
