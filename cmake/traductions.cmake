# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# The game in other languages than its own French: one Qt Linguist file a
# language in i18n/, compiled at every build into traductions/ beside the
# program and installed in the data folder, where the game looks for them.
# `cmake --build build --target troisniveaux_lupdate` brings every .ts file
# in line with the sources.
find_package(Qt6 REQUIRED COMPONENTS LinguistTools)
file(GLOB TN_TRADUCTIONS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/i18n/troisniveaux_*.ts)
set_source_files_properties(${TN_TRADUCTIONS} PROPERTIES OUTPUT_LOCATION
                            ${CMAKE_BINARY_DIR}/traductions)
qt_add_lupdate(troisniveaux TS_FILES ${TN_TRADUCTIONS}
  SOURCES ${MOTEUR_SOURCES} ${FENETRE_SOURCES} ${CMAKE_SOURCE_DIR}/src/main.cpp
  OPTIONS -no-obsolete -locations none)
qt_add_lrelease(troisniveaux TS_FILES ${TN_TRADUCTIONS} QM_FILES_OUTPUT_VARIABLE TN_QM
  OPTIONS -silent)
if(TARGET troisniveaux-tests-fenetre)
  add_dependencies(troisniveaux-tests-fenetre troisniveaux_lrelease)
  target_compile_definitions(troisniveaux-tests-fenetre PRIVATE
    TN_DOSSIER_I18N="${CMAKE_SOURCE_DIR}/i18n")
endif()
install(FILES ${TN_QM} DESTINATION ${TN_DONNEES_INSTALLEES}/traductions)
