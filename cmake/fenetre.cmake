# The game: the Qt window over the engine.
find_package(Qt6 REQUIRED COMPONENTS Widgets)
file(GLOB FENETRE_SOURCES CONFIGURE_DEPENDS src/platform/qt/*.cpp)
add_library(troisniveaux-fenetre STATIC ${FENETRE_SOURCES})
target_link_libraries(troisniveaux-fenetre PUBLIC troisniveaux-moteur Qt6::Widgets)
add_executable(troisniveaux src/main.cpp)
target_link_libraries(troisniveaux PRIVATE troisniveaux-fenetre)
add_dependencies(troisniveaux donnees-par-defaut)
