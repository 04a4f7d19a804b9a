#pragma once
// The host's fonts: a small numbered set of interface fonts that panels and lists share.
//
// getHostFont(APP_FONTS, n) gives font n of the set, made at first use and kept by the host
// for the life of the process; callers never delete it. Numbers outside the set give the
// nearest one.
class TFont;

constexpr int APP_FONTS = 1;
constexpr int kHostFontCount = 10;

TFont* getHostFont(int group, int index);
// The character height in pixels of font `index` (its LOGFONT height is the negative).
int HostFontCharacterHeight(int index);
