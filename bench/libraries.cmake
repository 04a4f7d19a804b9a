# bench_solar_reference measures the solar system against ERFA (Debian's liberfa-dev).
pkg_check_modules(ERFA REQUIRED IMPORTED_TARGET erfa)
target_link_libraries(bench_solar_reference PRIVATE PkgConfig::ERFA)
