# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# The game: the Qt window over the engine.
find_package(Qt6 REQUIRED COMPONENTS Widgets Svg)
file(GLOB FENETRE_SOURCES CONFIGURE_DEPENDS src/platform/qt/*/*.cpp)
add_library(troisniveaux-fenetre STATIC ${FENETRE_SOURCES})
target_link_libraries(troisniveaux-fenetre PUBLIC troisniveaux-moteur Qt6::Widgets Qt6::Svg)
# Decks come gzipped: the game unpacks them itself, within a bound.
find_package(ZLIB REQUIRED)
target_link_libraries(troisniveaux-fenetre PUBLIC ZLIB::ZLIB)
add_executable(troisniveaux src/main.cpp)
target_link_libraries(troisniveaux PRIVATE troisniveaux-fenetre)
add_dependencies(troisniveaux donnees-par-defaut)
# The game steered from its command line for the figures and the README's
# screenshots: built beside it, never installed.
add_executable(troisniveaux-mesures src/mesures/mesures.cpp)
target_link_libraries(troisniveaux-mesures PRIVATE troisniveaux-fenetre)
add_dependencies(troisniveaux-mesures troisniveaux)

# Whether the machine is on line.
find_package(Qt6 REQUIRED COMPONENTS Network)
target_link_libraries(troisniveaux-fenetre PUBLIC Qt6::Network)

# The display mode through RandR where the desktop is X11.
find_package(X11)
if(X11_FOUND AND X11_Xrandr_FOUND)
  target_link_libraries(troisniveaux-fenetre PUBLIC X11::X11 X11::Xrandr)
  target_compile_definitions(troisniveaux-fenetre PUBLIC TN_XRANDR)
endif()

# The advert panels: Qt's own rich-text view, or full web pages with Qt
# WebEngine when asked for. The server's base address is a setting; empty
# means the folder of the game's own pages.
option(TN_WEBENGINE "Show the advert panels with Qt WebEngine (full web pages)" OFF)
set(TN_PUB_BASE "" CACHE STRING "Base address of the advert pages (empty: the program's folder)")
if(TN_WEBENGINE)
  find_package(Qt6 COMPONENTS WebEngineWidgets)
  if(Qt6WebEngineWidgets_FOUND)
    target_link_libraries(troisniveaux-fenetre PUBLIC Qt6::WebEngineWidgets)
    target_compile_definitions(troisniveaux-fenetre PUBLIC TN_WEBENGINE)
  else()
    message(STATUS "Qt WebEngine not found: the advert panels use Qt's rich-text view")
  endif()
endif()
if(TN_PUB_BASE)
  target_compile_definitions(troisniveaux-fenetre PRIVATE TN_PUB_BASE="${TN_PUB_BASE}")
endif()

# The game's own pages, refreshed at every build.
add_custom_command(TARGET troisniveaux POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${CMAKE_SOURCE_DIR}/data/pub0.htm ${CMAKE_SOURCE_DIR}/data/pub1.htm
          ${CMAKE_SOURCE_DIR}/data/pub0-en.htm ${CMAKE_SOURCE_DIR}/data/pub1-en.htm
          ${CMAKE_SOURCE_DIR}/data/logomdc200.htm $<TARGET_FILE_DIR:troisniveaux>)
