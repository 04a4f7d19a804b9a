# Turns picture files into a C++ source that holds them as named module resources.
#
#   orbiscope_embed_pictures(<output.cpp> MODULE|ADDED <files...>)
#
# MODULE defines the module's own table (kModulePictures, kModulePictureCount), which the
# platform layer looks up first. ADDED makes a table that enters itself at start-up through
# AddPictureResources; it must be linked into an executable, not into a static library.
# A picture is named by its file name without extension, in capitals. The source is written at
# configure time and rewritten only when it changes; CMake runs again when a picture changes.
function(orbiscope_embed_pictures output kind)
  set(files ${ARGN})
  list(SORT files)
  set(arrays "")
  set(entries "")
  set(count 0)
  foreach(file IN LISTS files)
    get_filename_component(stem "${file}" NAME_WE)
    string(TOUPPER "${stem}" name)
    string(MAKE_C_IDENTIFIER "kPicture_${name}" symbol)
    file(READ "${file}" hex HEX)
    string(LENGTH "${hex}" hexLength)
    math(EXPR size "${hexLength} / 2")
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
    string(REGEX REPLACE "((0x[0-9a-f][0-9a-f],){16})" "\\1\n    " bytes "${bytes}")
    string(APPEND arrays "const BYTE ${symbol}[] = {\n    ${bytes}\n};\n")
    string(APPEND entries "    {\"${name}\", ${symbol}, ${size}},\n")
    math(EXPR count "${count} + 1")
    set_property(DIRECTORY "${CMAKE_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  endforeach()

  set(text "// Made by the build from picture files; do not edit.\n#include \"platform/ModuleResources.h\"\n\nnamespace {\n${arrays}} // namespace\n\n")
  if(kind STREQUAL "MODULE")
    string(APPEND text "extern const PictureResource kModulePictures[] = {\n${entries}    {nullptr, nullptr, 0},\n};\nextern const std::size_t kModulePictureCount = ${count};\n")
  else()
    string(APPEND text "namespace {\nconst PictureResource kAddedPictures[] = {\n${entries}    {nullptr, nullptr, 0},\n};\nconst bool kAdded = (AddPictureResources(kAddedPictures, ${count}), true);\n} // namespace\n")
  endif()
  file(CONFIGURE OUTPUT "${output}" CONTENT "${text}" @ONLY)
endfunction()
