# Installs the build tree into a fresh prefix and checks that every program
# and shipped file landed where the programs and the desktop look for them.
#   cmake -DSOURCE=<tree> -DBUILD=<build> -DPREFIX=<temp> -DAPP=<0|1> [-DPYTHON_MODULE=<path under prefix>]
#         -P install_test.cmake
foreach(var SOURCE BUILD PREFIX)
  if(NOT ${var})
    message(FATAL_ERROR "install_test: ${var} is not set")
  endif()
endforeach()

file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${errors}")
endif()

set(share share/dicemill)
set(expected bin/dicemill-cli share/doc/dicemill/README.md share/dicemill/README.md)
if(APP)
  list(APPEND expected bin/dicemill share/applications/org.dicemill.Dicemill.desktop
       share/icons/hicolor/scalable/apps/org.dicemill.Dicemill.svg
       share/metainfo/org.dicemill.Dicemill.metainfo.xml)
endif()
if(PYTHON_MODULE)
  list(APPEND expected ${PYTHON_MODULE})
endif()
# Each shipped file, from the tree, so that a file added later is checked too.
foreach(pair "samples/*;${share}/samples" "data/sounds/*;${share}/sounds" "docs/*.md;${share}/docs"
             "docs/*.md;share/doc/dicemill")
  list(GET pair 0 pattern)
  list(GET pair 1 destination)
  file(GLOB shipped RELATIVE ${SOURCE} ${SOURCE}/${pattern})
  if(NOT shipped)
    message(FATAL_ERROR "install_test: nothing in the tree matches ${pattern}")
  endif()
  foreach(file ${shipped})
    get_filename_component(name ${file} NAME)
    list(APPEND expected ${destination}/${name})
  endforeach()
endforeach()

set(missing "")
foreach(file ${expected})
  if(NOT EXISTS ${PREFIX}/${file})
    string(APPEND missing "\n  ${file}")
  endif()
endforeach()
if(missing)
  message(FATAL_ERROR "not installed under ${PREFIX}:${missing}")
endif()
file(REMOVE_RECURSE ${PREFIX})
