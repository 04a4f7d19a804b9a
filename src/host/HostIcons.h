#pragma once
// The host's icons: small pictures by name that the host shows in its title bars. The host
// keeps each for the life of the process, so callers never delete what they are given.
//
// Icons are pictures of the module (src/<subsystem>/resources/NAME.bmp): "PLNT", a ringed
// planet of 32 by 32 pixels, is the component's own.
class TDib;

// The icon of a name (found without regard to case), loaded at first use; null when there is
// no such picture or it cannot be read. `other` is the second word of the host's call, which
// would pick another form of the icon; the host has one form, so it is not looked at.
const TDib* GetHostIcon(const char* name, int other);
