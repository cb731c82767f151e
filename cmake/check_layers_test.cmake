# The layer check on a made-up tree: includes down the layers and a test's
# include up them pass; one upward include fails, naming file, line and layers.
#   cmake -DWORK=<scratch folder> -P check_layers_test.cmake

set(tree ${WORK}/tree)
file(REMOVE_RECURSE ${tree})
file(WRITE ${tree}/dice/die.h "#pragma once\n")
file(WRITE ${tree}/engine/table.h "#pragma once\n#include \"dice/die.h\"\n#include <vector>\n")
file(WRITE ${tree}/engine/table_test.cpp "#include \"cli/main.h\"\n")
file(WRITE ${tree}/cli/main.h "#pragma once\n#include \"engine/table.h\"\n")

function(run_check result output)
  execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${tree} -P ${CMAKE_CURRENT_LIST_DIR}/check_layers.cmake
                  RESULT_VARIABLE rc ERROR_VARIABLE err OUTPUT_QUIET)
  set(${result} ${rc} PARENT_SCOPE)
  set(${output} "${err}" PARENT_SCOPE)
endfunction()

run_check(rc err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "a tree whose includes run down was refused:\n${err}")
endif()

# Line 3, after a blank line; brackets and semicolons before it must not shift the count.
file(WRITE ${tree}/dice/die.cpp "int a[2]; int b;\n\n#include \"engine/table.h\"\n")
run_check(rc err)
if(rc EQUAL 0)
  message(FATAL_ERROR "an upward include passed the check")
endif()
string(REGEX REPLACE "[ \n]+" " " err "${err}")
if(NOT err MATCHES "dice/die\\.cpp:3: dice includes engine, a higher layer")
  message(FATAL_ERROR "the failure does not name the file, line and layers:\n${err}")
endif()
file(REMOVE ${tree}/dice/die.cpp)

# A front end may not lean on another one.
file(WRITE ${tree}/ui/window.cpp "#include \"engine/table.h\"\n#include \"cli/main.h\"\n")
run_check(rc err)
string(REGEX REPLACE "[ \n]+" " " err "${err}")
if(rc EQUAL 0 OR NOT err MATCHES "ui/window\\.cpp:2: ui includes cli, another front end")
  message(FATAL_ERROR "a front end including another passed or was misreported:\n${err}")
endif()
file(REMOVE ${tree}/ui/window.cpp)

# The Python module is a front end too: the run report it shares with the
# command line comes from below, never from cli/.
file(WRITE ${tree}/python/module.cpp "#include \"cli/main.h\"\n")
run_check(rc err)
string(REGEX REPLACE "[ \n]+" " " err "${err}")
if(rc EQUAL 0 OR NOT err MATCHES "python/module\\.cpp:1: python includes cli, another front end")
  message(FATAL_ERROR "the Python module including the command line passed or was misreported:\n${err}")
endif()
file(REMOVE_RECURSE ${tree})
