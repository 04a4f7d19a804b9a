# What `cmake --install` puts under the prefix, and `cpack -G DEB` into a Debian package:
#   bin/orbiscope                          the reference host program
#   lib/liborbiscope.so.N (+ .so)          the component, with a versioned soname
#   include/orbiscope/...                  the public headers, in the folders of src/
#   lib/pkgconfig/orbiscope.pc             for pkg-config
#   lib/cmake/Orbiscope/                   for find_package(Orbiscope): Orbiscope::orbiscope
#   share/orbiscope/                       the data
#   share/applications, share/icons        the desktop entry and its icon
#   share/man/man1/orbiscope.1             the manual page, made from --help
# The program finds the library, and the library the data, by the relative paths worked out
# in the top CMakeLists.txt, so an installation works wherever it lies.
include(CMakePackageConfigHelpers)

set(ORBISCOPE_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Orbiscope")
set(ORBISCOPE_GENERATED "${CMAKE_BINARY_DIR}/generated")

# The library as embedders see it: Orbiscope::orbiscope, with the headers and C++20 it needs.
set_target_properties(liborbiscope PROPERTIES EXPORT_NAME orbiscope)
target_include_directories(liborbiscope
                           INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/orbiscope>)
target_compile_features(liborbiscope INTERFACE cxx_std_20)

install(TARGETS orbiscope RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS liborbiscope EXPORT OrbiscopeTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT Development)

# The public headers: the entry's, the embedding interface's, what an embedder needs to host
# the map (a parent window, the message loop, the headless desktop, pictures, objects of its
# own), and every header of the component that these include, found by following their
# #include "..." lines.
set(ORBISCOPE_PUBLIC_HEADERS
    shell/OrbiscopeEntry.h shell/OrbiscopeWindowInterface.h shell/ReferenceHostKit.h
    catalogues/Constellation.h catalogues/MorphingObject.h platform/TWindow.h
    platform/WindowSystem.h platform/headless/HeadlessBackend.h platform/PngFile.h)
function(orbiscope_header_closure out)
  set(pending ${ARGN})
  set(found "")
  while(pending)
    list(POP_FRONT pending header)
    if(header IN_LIST found)
      continue()
    endif()
    list(APPEND found ${header})
    file(STRINGS "${CMAKE_SOURCE_DIR}/src/${header}" lines REGEX "^#include \"")
    foreach(line IN LISTS lines)
      string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
      list(APPEND pending ${included})
    endforeach()
  endwhile()
  set(${out} ${found} PARENT_SCOPE)
endfunction()
orbiscope_header_closure(headers ${ORBISCOPE_PUBLIC_HEADERS})
foreach(header IN LISTS headers)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "${CMAKE_SOURCE_DIR}/src/${header}"
          DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/orbiscope/${folder}" COMPONENT Development)
endforeach()

# pkg-config: the prefix is found from the file's own place, so the installation may move.
file(RELATIVE_PATH ORBISCOPE_PC_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" ORBISCOPE_PC_TO_PREFIX "${ORBISCOPE_PC_TO_PREFIX}")
configure_file("${CMAKE_SOURCE_DIR}/cmake/orbiscope.pc.in" "${ORBISCOPE_GENERATED}/orbiscope.pc"
               @ONLY)
install(FILES "${ORBISCOPE_GENERATED}/orbiscope.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT Development)

# find_package(Orbiscope).
install(EXPORT OrbiscopeTargets NAMESPACE Orbiscope:: DESTINATION ${ORBISCOPE_CMAKE_DIR}
        COMPONENT Development)
configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/OrbiscopeConfig.cmake.in"
                              "${ORBISCOPE_GENERATED}/OrbiscopeConfig.cmake"
                              INSTALL_DESTINATION ${ORBISCOPE_CMAKE_DIR})
write_basic_package_version_file("${ORBISCOPE_GENERATED}/OrbiscopeConfigVersion.cmake"
                                 COMPATIBILITY SameMajorVersion)
install(FILES "${ORBISCOPE_GENERATED}/OrbiscopeConfig.cmake"
              "${ORBISCOPE_GENERATED}/OrbiscopeConfigVersion.cmake"
        DESTINATION ${ORBISCOPE_CMAKE_DIR} COMPONENT Development)

install(DIRECTORY "${CMAKE_SOURCE_DIR}/data/" DESTINATION "${CMAKE_INSTALL_DATADIR}/orbiscope")

# The desktop: the entry, the icon at two sizes, the manual page.
add_executable(desktop_icon "${CMAKE_SOURCE_DIR}/app/desktop_icon.cpp")
target_link_libraries(desktop_icon PRIVATE orbiscope_core)
orbiscope_warnings(desktop_icon)
add_custom_command(
  OUTPUT "${ORBISCOPE_GENERATED}/icon-32.png" "${ORBISCOPE_GENERATED}/icon-64.png"
  COMMAND desktop_icon "${ORBISCOPE_GENERATED}/icon-32.png" "${ORBISCOPE_GENERATED}/icon-64.png"
  DEPENDS desktop_icon
  COMMENT "Drawing the desktop icon")
add_custom_command(
  OUTPUT "${ORBISCOPE_GENERATED}/orbiscope.1"
  COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:orbiscope>
          -DOUT=${ORBISCOPE_GENERATED}/orbiscope.1 -DVERSION=${PROJECT_VERSION}
          -P "${CMAKE_SOURCE_DIR}/cmake/ManPage.cmake"
  DEPENDS orbiscope "${CMAKE_SOURCE_DIR}/cmake/ManPage.cmake"
  COMMENT "Writing the manual page from orbiscope --help")
add_custom_target(orbiscope_desktop ALL
                  DEPENDS "${ORBISCOPE_GENERATED}/icon-32.png" "${ORBISCOPE_GENERATED}/icon-64.png"
                          "${ORBISCOPE_GENERATED}/orbiscope.1")
install(FILES "${CMAKE_SOURCE_DIR}/app/orbiscope.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${ORBISCOPE_GENERATED}/icon-32.png" RENAME orbiscope.png
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/32x32/apps")
install(FILES "${ORBISCOPE_GENERATED}/icon-64.png" RENAME orbiscope.png
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/64x64/apps")
install(FILES "${ORBISCOPE_GENERATED}/orbiscope.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

# cpack -G DEB: one package with all of the above, installed under /usr.
set(CPACK_PACKAGE_NAME orbiscope)
set(CPACK_PACKAGE_VENDOR "Orbiscope")
set(CPACK_PACKAGE_CONTACT "Orbiscope developers <orbiscope@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Planetarium component with a sky map to embed, and its host program")
set(CPACK_PACKAGE_DESCRIPTION
    "An interactive sky map for any place on Earth and any date: stars, constellations, the Sun, the Moon and the planets, comets and Messier objects, time lapses, bookmarks and printed charts. The library embeds a bare map in other programs; the orbiscope program hosts it, draws pictures and charts without a display and plays a sky game.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libsdl2-2.0-0, libfreetype6, libfontconfig1, libpng16-16, libcairo2, libsqlite3-0, fonts-liberation, tzdata")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
include(CPack)
