# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Tests in the real window (offscreen when there is no display).
find_package(Qt6 REQUIRED COMPONENTS Test)
file(GLOB TESTS_FENETRE CONFIGURE_DEPENDS tests/window/*.cpp)
if(TESTS_FENETRE)
  add_executable(troisniveaux-tests-fenetre ${TESTS_FENETRE})
  target_link_libraries(troisniveaux-tests-fenetre PRIVATE troisniveaux-fenetre Qt6::Test GTest::gtest)
  target_include_directories(troisniveaux-tests-fenetre PRIVATE tests/engine)
  # The game's own pages are checked as shipped.
  target_compile_definitions(troisniveaux-tests-fenetre PRIVATE TN_DOSSIER_DONNEES="${CMAKE_SOURCE_DIR}/data")
  gtest_discover_tests(troisniveaux-tests-fenetre DISCOVERY_TIMEOUT 60)
endif()
if(TESTS_FENETRE AND TN_SANITIZE)
  # The browser's own processes are not ours to check under the sanitizers.
  target_compile_definitions(troisniveaux-tests-fenetre PRIVATE TN_SANS_CHROMIUM)
endif()
if(TESTS_FENETRE)
  # A cut-down session that the display tests start, signal and cut off.
  add_executable(troisniveaux-pilote-affichage tests/window/pilote/pilote_affichage.cpp)
  target_link_libraries(troisniveaux-pilote-affichage PRIVATE troisniveaux-fenetre)
  add_dependencies(troisniveaux-tests-fenetre troisniveaux-pilote-affichage)
  target_compile_definitions(troisniveaux-tests-fenetre PRIVATE
    TN_PILOTE_AFFICHAGE="$<TARGET_FILE:troisniveaux-pilote-affichage>")
endif()
