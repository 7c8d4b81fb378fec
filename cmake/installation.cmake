# Installing the game for every user of a machine, and its Debian package.
# A packager can send the binaries elsewhere (-DCMAKE_INSTALL_BINDIR=games);
# the game finds its installed files from its own folder.
# A system install follows Debian: games' binaries go to /usr/games.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr" AND NOT CMAKE_INSTALL_BINDIR)
  set(CMAKE_INSTALL_BINDIR "games" CACHE PATH "User executables (games for a system install)")
endif()
include(GNUInstallDirs)

# One reverse-DNS id names the desktop entry, the AppStream data and the icon.
set(TN_ID_APPLICATION "io.github.troisniveaux.TroisNiveaux" CACHE STRING "Reverse-DNS application id")
set(TN_ADRESSE_PROJET "https://github.com/troisniveaux/troisniveaux" CACHE STRING "The project's home page")
set(TN_DATE_VERSION "2026-11-23")
set(TN_DONNEES_INSTALLEES "${CMAKE_INSTALL_DATADIR}/troisniveaux")

# Where the installed defaults lie, seen from the installed program.
file(RELATIVE_PATH TN_DONNEES_RELATIVES "${CMAKE_INSTALL_FULL_BINDIR}"
     "${CMAKE_INSTALL_FULL_DATADIR}/troisniveaux")
target_compile_definitions(troisniveaux-fenetre PRIVATE
  TN_ID_APPLICATION="${TN_ID_APPLICATION}" TN_VERSION="${PROJECT_VERSION}"
  TN_DONNEES_RELATIVES="${TN_DONNEES_RELATIVES}")

# The window's icon when no icon theme holds it (a build tree).
qt_add_resources(troisniveaux "icones" PREFIX "/icones" BASE "${CMAKE_SOURCE_DIR}/data/icones"
  FILES data/icones/troisniveaux-32.png data/icones/troisniveaux-64.png
        data/icones/troisniveaux-128.png data/icones/troisniveaux-256.png)

# The advert panels' content rating follows what they can show.
if(TN_PUB_BASE)
  set(TN_OARS_PUBLICITE "intense")
  set(TN_OARS_COMMENTAIRE "The two panels show pages of an advert server (${TN_PUB_BASE}): its adverts may encourage buying real products.")
else()
  set(TN_OARS_PUBLICITE "none")
  set(TN_OARS_COMMENTAIRE "No advert server is configured: the two panels show the game's own pages, which advertise nothing.")
endif()
configure_file(data/troisniveaux.desktop.in ${TN_ID_APPLICATION}.desktop @ONLY)
configure_file(data/troisniveaux.metainfo.xml.in ${TN_ID_APPLICATION}.metainfo.xml @ONLY)
configure_file(data/copyright.in copyright @ONLY)
set(TN_MAINTENEUR "TroisNiveaux <troisniveaux@users.noreply.github.com>" CACHE STRING "Package maintainer")
configure_file(data/changelog.in changelog @ONLY)

# Manual pages and the changelog, compressed as distributions ship them.
# The English pages are the default ones; the French beside them in fr/.
find_program(GZIP_PROGRAM gzip REQUIRED)
set(PAGES_MANUEL)
foreach(langue en fr)
  set(source ${CMAKE_SOURCE_DIR}/data/man)
  if(langue STREQUAL "en")
    set(source ${CMAKE_SOURCE_DIR}/data/man/en)
  endif()
  foreach(page troisniveaux troisniveaux-analyse)
    add_custom_command(OUTPUT man/${langue}/${page}.6.gz
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man/${langue}
      COMMAND ${GZIP_PROGRAM} -9n -c ${source}/${page}.6 > man/${langue}/${page}.6.gz
      DEPENDS ${source}/${page}.6 VERBATIM)
    list(APPEND PAGES_MANUEL_${langue} ${CMAKE_BINARY_DIR}/man/${langue}/${page}.6.gz)
  endforeach()
  list(APPEND PAGES_MANUEL ${PAGES_MANUEL_${langue}})
endforeach()
add_custom_command(OUTPUT changelog.gz
  COMMAND ${GZIP_PROGRAM} -9n -c ${CMAKE_BINARY_DIR}/changelog > changelog.gz
  DEPENDS ${CMAKE_BINARY_DIR}/changelog VERBATIM)
add_custom_target(pages-manuel ALL DEPENDS ${PAGES_MANUEL} changelog.gz)

install(TARGETS troisniveaux troisniveaux-analyse RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES data/Noms data/Scores data/pub0.htm data/pub1.htm data/logomdc200.htm
        data/pub0-en.htm data/pub1-en.htm
        DESTINATION ${TN_DONNEES_INSTALLEES})
install(FILES ${CMAKE_BINARY_DIR}/${TN_ID_APPLICATION}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_BINARY_DIR}/${TN_ID_APPLICATION}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES data/icones/troisniveaux.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME ${TN_ID_APPLICATION}.svg)
foreach(taille 16 22 24 32 48 64 128 256)
  install(FILES data/icones/troisniveaux-${taille}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${taille}x${taille}/apps
          RENAME ${TN_ID_APPLICATION}.png)
endforeach()
install(FILES ${PAGES_MANUEL_en} DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${PAGES_MANUEL_fr} DESTINATION ${CMAKE_INSTALL_MANDIR}/fr/man6)
# Named for the package, as Debian wants it.
install(FILES ${CMAKE_BINARY_DIR}/copyright ${CMAKE_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/troisniveaux)

# cpack -G DEB, from a build configured with CMAKE_INSTALL_PREFIX=/usr.
set(CPACK_PACKAGE_NAME troisniveaux)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "TroisNiveaux")
set(CPACK_PACKAGE_CONTACT "${TN_MAINTENEUR}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "card game: thirteen cards on three levels")
set(CPACK_PACKAGE_DESCRIPTION
  "Trois Niveaux is a card game in French or English for one player against\nthree computer seats. Each deal gives every seat 13 cards to lay on three\nlevels of 5, 5 and 3 cards, each level stronger than the next by poker order;\nevery level is then paid against the same level of the other seats. The computer plays by\nexhaustive search over all 72072 ways to lay its cards.\n\nThe package also holds troisniveaux-analyse, which shows on the command line\nthe layout the computer plays for a hand and replays a whole deal.")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TN_ADRESSE_PROJET})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2")
# Debian's card decks, drawn by the game when present; Qt's Wayland plugin,
# without which a Wayland session runs the game through XWayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "kdegames-card-data-kf5, qt6-wayland")
set(CPACK_STRIP_FILES ON)
set(CPACK_SET_DESTDIR OFF)
include(CPack)
