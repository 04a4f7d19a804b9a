# Warnings for our own targets only; third-party headers come in as system includes.
function(orbiscope_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Wno-missing-field-initializers -Werror)
endfunction()
