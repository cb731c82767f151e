# Where `cmake --install` puts the programs and what they read, and the Debian
# package that `cpack -G DEB` makes of the same tree. Shipped files sit in
# <prefix>/share/dicemill as they sit in the source tree, except the sounds,
# which come from data/sounds.
include(GNUInstallDirs)

set(DICEMILL_SHARE_DIR ${CMAKE_INSTALL_DATADIR}/dicemill)

install(TARGETS dicemill-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

install(DIRECTORY samples/ DESTINATION ${DICEMILL_SHARE_DIR}/samples)
install(DIRECTORY data/sounds/ DESTINATION ${DICEMILL_SHARE_DIR}/sounds)
# The in-program help reads the docs from the share folder; the same pages go
# where Debian keeps documentation too.
file(GLOB DICEMILL_DOCS CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/docs/*.md)
install(FILES ${DICEMILL_DOCS} DESTINATION ${DICEMILL_SHARE_DIR}/docs)
# The help opens on the README, as "Getting started".
install(FILES README.md DESTINATION ${DICEMILL_SHARE_DIR})
install(FILES ${DICEMILL_DOCS} README.md DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/dicemill)

# The desktop program only exists where Qt was found, and its folder may be
# added after this file is read: it and the package, whose contents depend on
# it, wait for the end of the top folder's configuration.
function(dicemill_install_desktop_program_and_package)
  set(programs "the command line dicemill-cli")
  if(TARGET dicemill_app)
    install(TARGETS dicemill_app RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    # Menus and software centres list the program only where it is installed.
    install(FILES packaging/org.dicemill.Dicemill.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES packaging/org.dicemill.Dicemill.svg
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
    install(FILES packaging/org.dicemill.Dicemill.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    set(programs "the desktop program dicemill, ${programs}")
    # Qt reads SVG pictures through a plugin that no program links, so
    # dpkg-shlibdeps cannot see it.
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS libqt6svg6)
    set(app_path $<TARGET_FILE:dicemill_app>)
  endif()
  # scripts/run.sh opens the table from here, when there is one.
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/desktop-program-path.txt CONTENT "${app_path}")
  set(CPACK_PACKAGE_NAME dicemill)
  set(CPACK_PACKAGE_VENDOR Dicemill)
  set(CPACK_PACKAGE_CONTACT "Dicemill <dev@dicemill.invalid>")
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "craps table and betting strategy simulator")
  set(CPACK_PACKAGE_DESCRIPTION "Dicemill is a craps table for the desktop that is also an instrument for
measuring betting strategies: every one of its 83 bets is paid, taken or pushed
exactly by configurable rules, and the table can run headless for millions of
rolls. This package holds ${programs},
sample strategies, sounds and documentation.")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_STRIP_FILES ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION games)
  set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
  # dpkg-shlibdeps reads the libraries the programs link and writes Depends.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  include(CPack)
endfunction()
cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL dicemill_install_desktop_program_and_package)
