# Draws every screen with `dicemill --screenshot` offscreen and checks that
# each picture the screens list names was written and is a PNG.
#   cmake -DPROGRAM=<dicemill> -DWORK=<folder> -P screenshots_test.cmake

file(REMOVE_RECURSE ${WORK})
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{DICEMILL_HOME} ${WORK}/home)
# Were the program to keep its settings, they would land here, not in the
# player's own folder; drawing the screens must keep none.
set(ENV{XDG_CONFIG_HOME} ${WORK}/config)
execute_process(COMMAND ${PROGRAM} --screenshot ${WORK}/png RESULT_VARIABLE rc ERROR_VARIABLE err OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "dicemill --screenshot failed (${rc}):\n${err}")
endif()
if(EXISTS ${WORK}/config/Dicemill)
  message(FATAL_ERROR "dicemill --screenshot wrote the player's settings")
endif()
set(expected auto-play hot-keys dice-roll-files bankroll-graph bankroll-graph-running main-window table-empty table-busy table-busy-small table-hop-bets pad message notice-winner notice-lost prompt-number about help
    summary roll-totals roll-frequencies bet-results bet-trends games-log games-log-histogram chip-stacks flags
    configure-checks-dice configure-sound configure-comps configure-colors configure-misc configure-bankroll
    configure-bets configure-payoffs configure-probability configure-advantage
    auto-bet-lines auto-bet-text steps)
foreach(name ${expected})
  set(png ${WORK}/png/${name}.png)
  if(NOT EXISTS ${png})
    message(FATAL_ERROR "no picture ${name}.png")
  endif()
  file(READ ${png} head LIMIT 8 HEX)
  if(NOT head STREQUAL "89504e470d0a1a0a")
    message(FATAL_ERROR "${name}.png is no PNG")
  endif()
endforeach()
file(REMOVE_RECURSE ${WORK})
