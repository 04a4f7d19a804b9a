# Warnings for our own targets only; third-party headers come in as system includes.
# The release, debug and sanitizer flavours (gcc) treat warnings as errors; the fuzz flavour
# (clang) turns that off with ORBISCOPE_WERROR=OFF, since its job is finding crashes and
# clang warns on a few things gcc accepts.
option(ORBISCOPE_WERROR "Treat warnings in our code as errors" ON)
function(orbiscope_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Wno-missing-field-initializers)
  if(ORBISCOPE_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
