# The game: the Qt window over the engine.
find_package(Qt6 REQUIRED COMPONENTS Widgets)
file(GLOB FENETRE_SOURCES CONFIGURE_DEPENDS src/platform/qt/*.cpp)
add_library(troisniveaux-fenetre STATIC ${FENETRE_SOURCES})
target_link_libraries(troisniveaux-fenetre PUBLIC troisniveaux-moteur Qt6::Widgets)
add_executable(troisniveaux src/main.cpp)
target_link_libraries(troisniveaux PRIVATE troisniveaux-fenetre)
add_dependencies(troisniveaux donnees-par-defaut)

# Whether the machine is on line.
find_package(Qt6 REQUIRED COMPONENTS Network)
target_link_libraries(troisniveaux-fenetre PUBLIC Qt6::Network)

# The display mode through RandR where the desktop is X11.
find_package(X11)
if(X11_FOUND AND X11_Xrandr_FOUND)
  target_link_libraries(troisniveaux-fenetre PUBLIC X11::X11 X11::Xrandr)
  target_compile_definitions(troisniveaux-fenetre PRIVATE TN_XRANDR)
endif()
