# The storey of a file follows from its folder, so a new file needs no line here:
# ui/ is the window, the folders named below are pure numerics, all the rest is the core.
file(GLOB_RECURSE all CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.cpp)
set(pure_folders "/src/(catalogue|solvers|materials|particles|timedomain|colour|axes|runs|sky)/")
set(LUMIVEX_NUMERICS_SOURCES ${all})
list(FILTER LUMIVEX_NUMERICS_SOURCES INCLUDE REGEX "${pure_folders}")
set(LUMIVEX_UI_SOURCES ${all})
list(FILTER LUMIVEX_UI_SOURCES INCLUDE REGEX "/src/ui/")
list(FILTER LUMIVEX_UI_SOURCES EXCLUDE REGEX "/src/ui/(main\\.cpp|console/)")
set(LUMIVEX_CORE_SOURCES ${all})
list(FILTER LUMIVEX_CORE_SOURCES EXCLUDE REGEX "${pure_folders}|/src/ui/")
