# The drawing layer draws text with FreeType and fontconfig and reads and writes pictures with
# libpng.
pkg_check_modules(ORBISCOPE_DRAWING REQUIRED IMPORTED_TARGET freetype2 fontconfig libpng)
target_link_libraries(orbiscope_core PUBLIC PkgConfig::ORBISCOPE_DRAWING)

# Pictures in src/<subsystem>/resources/ become the module's named resources.
include("${CMAKE_CURRENT_LIST_DIR}/EmbedPictures.cmake")
file(GLOB orbiscope_module_pictures CONFIGURE_DEPENDS
     "${CMAKE_SOURCE_DIR}/src/*/resources/*.bmp" "${CMAKE_SOURCE_DIR}/src/*/resources/*.png")
orbiscope_embed_pictures("${CMAKE_BINARY_DIR}/generated/ModulePictures.cpp" MODULE
                         ${orbiscope_module_pictures})
target_sources(orbiscope_core PRIVATE "${CMAKE_BINARY_DIR}/generated/ModulePictures.cpp")

# Pictures in tests/platform/resources/ become resources of the platform tests alone. The test
# program is made after this file runs, hence the deferred call.
function(orbiscope_platform_test_pictures)
  if(TARGET test_platform)
    file(GLOB pictures CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/platform/resources/*.bmp"
         "${CMAKE_SOURCE_DIR}/tests/platform/resources/*.png")
    orbiscope_embed_pictures("${CMAKE_BINARY_DIR}/generated/TestPictures.cpp" ADDED ${pictures})
    target_sources(test_platform PRIVATE "${CMAKE_BINARY_DIR}/generated/TestPictures.cpp")
  endif()
endfunction()
cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL orbiscope_platform_test_pictures)

# The window system's backends: the headless desktop (tests, rendering) and SDL2 (a display).
file(GLOB orbiscope_window_backends CONFIGURE_DEPENDS "${CMAKE_CURRENT_LIST_DIR}/headless/*.cpp"
     "${CMAKE_CURRENT_LIST_DIR}/sdl/*.cpp")
target_sources(orbiscope_core PRIVATE ${orbiscope_window_backends})
pkg_check_modules(SDL2 REQUIRED IMPORTED_TARGET sdl2)
target_link_libraries(orbiscope_core PUBLIC PkgConfig::SDL2)

# Printed pages become PDF files through cairo, with their text in the fonts fontconfig finds.
pkg_check_modules(ORBISCOPE_PRINTING REQUIRED IMPORTED_TARGET cairo cairo-pdf cairo-ft)
target_link_libraries(orbiscope_core PUBLIC PkgConfig::ORBISCOPE_PRINTING)

# On X the SDL backend makes an atom of the window managers' before its first window (see
# SdlBackend.cpp), through Xlib, which SDL itself loads.
pkg_check_modules(ORBISCOPE_X11 REQUIRED IMPORTED_TARGET x11)
target_link_libraries(orbiscope_core PUBLIC PkgConfig::ORBISCOPE_X11)
