#!/usr/bin/env bash
# The installation as a system and an embedder get it, from a whole build of this tree:
#   - `cmake --install` into a temporary prefix puts every piece where it belongs, the library
#     with its soname, exporting the entry and OrbiscopeWindowInterface;
#   - the installed program draws a sky with stars with its own library and data, without
#     environment variables to lead it there;
#   - examples/embed-map builds against the installation through pkg-config and through
#     find_package, and each build draws a sky with stars into a PNG file;
#   - `cpack -G DEB` makes a package, which unpacked elsewhere works the same.
#
#   check_install.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
source=$(cd "$2" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

fail() { echo "check_install: $*" >&2; exit 1; }
# The white pixels of a picture: stars, and little else the map draws is that bright.
white_pixels() {
  convert "$1" -colorspace Gray -threshold 78% -format '%[fx:round(mean*w*h)]' info:
}
has_stars() {
  local n
  n=$(white_pixels "$1")
  [ "$n" -ge 30 ] || fail "$1 shows $n white pixels, no starry sky"
}

# Nothing from the environment may lead the program or the library to the build tree.
unset ORBISCOPE_DATA ORBISCOPE_LIBRARY
export ORBISCOPE_HOME=$work/home
mkdir -p "$ORBISCOPE_HOME"

cmake --install "$build" --prefix "$prefix" >"$work/install.log"
for file in bin/orbiscope lib/liborbiscope.so.0 lib/liborbiscope.so \
            include/orbiscope/shell/OrbiscopeEntry.h \
            include/orbiscope/shell/OrbiscopeWindowInterface.h \
            lib/pkgconfig/orbiscope.pc lib/cmake/Orbiscope/OrbiscopeConfig.cmake \
            share/orbiscope/strings.txt share/orbiscope/bright.bin \
            share/applications/orbiscope.desktop share/icons/hicolor/32x32/apps/orbiscope.png \
            share/man/man1/orbiscope.1; do
  [ -e "$prefix/$file" ] || fail "the installation lacks $file"
done
readelf -d "$prefix/lib/liborbiscope.so.0" | grep -q 'Library soname: \[liborbiscope.so.0\]' ||
  fail "the library's soname is not liborbiscope.so.0"
symbols=$(nm -DC "$prefix/lib/liborbiscope.so.0")
grep -qE ' T orbiscope$' <<<"$symbols" || fail "the library does not export the entry orbiscope"
grep -q ' T OrbiscopeWindowInterface::OrbiscopeWindowInterface(TWindow\*)' <<<"$symbols" ||
  fail "the library does not export OrbiscopeWindowInterface"
grep -q 'Where is %s?' "$prefix/share/man/man1/orbiscope.1" &&
  fail "the manual page holds a string of the game instead of the help"
grep -q 'orbiscope render' "$prefix/share/man/man1/orbiscope.1" ||
  fail "the manual page does not hold the help"

# The installed program, with its library and data found from where it lies.
ORBISCOPE_DEBUG=1 "$prefix/bin/orbiscope" render --out "$work/render.png" --size 400x300 \
  --time "2026-01-15 22:00" --center 84,0 --radius 20 >"$work/render.log" 2>&1 ||
  { cat "$work/render.log" >&2; fail "the installed program did not draw"; }
tr -d '\r' <"$work/render.log" | grep -qx "HostFile: the data directory is $prefix/share/orbiscope" ||
  fail "the installed program did not read the installation's data"
has_stars "$work/render.png"

# The example, both ways.
make -s -C "$source/examples/embed-map" PKG_CONFIG_PATH="$prefix/lib/pkgconfig" OUT="$work" ||
  fail "the example does not build with pkg-config"
"$work/embed_map" "$work/pkg-config.png" >/dev/null || fail "the example built with pkg-config fails"
has_stars "$work/pkg-config.png"
cmake -S "$source/examples/embed-map" -B "$work/example" -DCMAKE_PREFIX_PATH="$prefix" \
  >/dev/null || fail "find_package(Orbiscope) does not find the installation"
cmake --build "$work/example" >/dev/null || fail "the example does not build with find_package"
"$work/example/embed_map" "$work/find-package.png" >/dev/null ||
  fail "the example built with find_package fails"
has_stars "$work/find-package.png"

# The Debian package, unpacked somewhere else.
(cd "$work" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/deb" >/dev/null) ||
  fail "cpack -G DEB fails"
package=$(ls "$work"/deb/orbiscope_*.deb)
dpkg-deb -x "$package" "$work/unpacked"
"$work/unpacked/usr/bin/orbiscope" render --out "$work/deb.png" --size 400x300 \
  --time "2026-01-15 22:00" --center 84,0 --radius 20 >/dev/null 2>&1 ||
  fail "the packaged program does not draw"
has_stars "$work/deb.png"
echo "check_install: the installation, both builds of the example and the package work"
