# bench_solar_reference measures the solar system against ERFA (Debian's liberfa-dev), which is
# reference data that tools/setup installs, not something building and testing need: without
# it that one benchmark is left out of the build.
pkg_check_modules(ERFA QUIET IMPORTED_TARGET erfa)
if(ERFA_FOUND)
  target_link_libraries(bench_solar_reference PRIVATE PkgConfig::ERFA)
else()
  message(STATUS "ERFA is not installed (tools/setup installs it): bench_solar_reference is left out")
  set_target_properties(bench_solar_reference PROPERTIES EXCLUDE_FROM_ALL TRUE)
endif()
