# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Installing the game for every user of a machine (the Debian package in
# debian/ goes through these rules too). The game finds its installed files
# from its own folder, so the binaries may go anywhere (CMAKE_INSTALL_BINDIR).
include(GNUInstallDirs)
include(cmake/projet.cmake)
set(TN_DONNEES_INSTALLEES "${CMAKE_INSTALL_DATADIR}/troisniveaux")

# Where the installed defaults lie, seen from the installed program.
file(RELATIVE_PATH TN_DONNEES_RELATIVES "${CMAKE_INSTALL_FULL_BINDIR}"
     "${CMAKE_INSTALL_FULL_DATADIR}/troisniveaux")
target_compile_definitions(troisniveaux-fenetre PRIVATE
  TN_ID_APPLICATION="${TN_ID_APPLICATION}" TN_VERSION="${PROJECT_VERSION}"
  TN_DONNEES_RELATIVES="${TN_DONNEES_RELATIVES}")
target_compile_definitions(troisniveaux-analyse PRIVATE TN_VERSION="${PROJECT_VERSION}")

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

# Manual pages, compressed as distributions ship them (no name or time in the
# gzip header, so that two builds give the same bytes). The English pages are
# the default ones; the French beside them in fr/.
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
add_custom_target(pages-manuel ALL DEPENDS ${PAGES_MANUEL})

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
