# The settings store behind the registry calls keeps its tree in SQLite.
pkg_check_modules(SQLITE3 REQUIRED IMPORTED_TARGET sqlite3)
target_link_libraries(orbiscope_core PUBLIC PkgConfig::SQLITE3)
