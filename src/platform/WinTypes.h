#pragma once
// The plain types, structures and constants of the drawing interface, under the names and with
// the values the component's code uses. Colours are COLORREF values 0x00bbggrr; the top byte
// says how to read them: 0 plain RGB, 1 a palette index, 2 an RGB matched in the palette.
#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using BOOL = int;
using COLORREF = DWORD;

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;

class TDC;
class GdiBitmap;
class GdiPalette;
struct ModuleInstance;

class TBrush;
class TFont;

// A device context handle is the context itself; a TDC converts to it.
using HDC = TDC*;
using HBITMAP = GdiBitmap*;
using HPALETTE = GdiPalette*;
// Any object handle, as DeleteObject and GetObjectA take it.
using HGDIOBJ = void*;
using HANDLE = void*;
using HINSTANCE = ModuleInstance*;
// The module a window's cursor or a resource comes from; the component has one.
using TModule = ModuleInstance;

// Window, menu and cursor handles are numbers that no two live objects share; a handle whose
// object has gone finds nothing. A cursor handle is the number of its system cursor (IDC_...).
struct HWND__;
using HWND = HWND__*;
struct HMENU__;
using HMENU = HMENU__*;
struct HCURSOR__;
using HCURSOR = HCURSOR__*;
// A font handle names a font description that the receiver copies; a brush handle, a brush
// that outlives the call.
using HFONT = const TFont*;
using HBRUSH = const TBrush*;

// Message parameters are wide enough to carry a pointer.
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using UINT_PTR = std::uintptr_t;

constexpr COLORREF RGB(BYTE r, BYTE g, BYTE b)
{
    return COLORREF(r) | (COLORREF(g) << 8) | (COLORREF(b) << 16);
}
constexpr BYTE GetRValue(COLORREF c)
{
    return BYTE(c & 0xFF);
}
constexpr BYTE GetGValue(COLORREF c)
{
    return BYTE((c >> 8) & 0xFF);
}
constexpr BYTE GetBValue(COLORREF c)
{
    return BYTE((c >> 16) & 0xFF);
}
// Entry i of the palette selected into the context.
constexpr COLORREF PALETTEINDEX(WORD i)
{
    return 0x01000000u | i;
}
// The palette entry nearest to an RGB value.
constexpr COLORREF PALETTERGB(BYTE r, BYTE g, BYTE b)
{
    return 0x02000000u | RGB(r, g, b);
}
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

struct POINT
{
    LONG x;
    LONG y;
};

struct SIZE
{
    LONG cx;
    LONG cy;
};

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct RGBQUAD
{
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

struct PALETTEENTRY
{
    BYTE peRed;
    BYTE peGreen;
    BYTE peBlue;
    BYTE peFlags;
};

struct LOGPALETTE
{
    WORD palVersion;
    WORD palNumEntries;
    PALETTEENTRY palPalEntry[1];
};

struct BITMAPINFOHEADER
{
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

// The header followed by its colour table: RGBQUADs, or WORD palette indices with
// DIB_PAL_COLORS. Callers allocate room for the whole table behind the header.
struct BITMAPINFO
{
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

struct BITMAP
{
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    void* bmBits;
};

struct DIBSECTION
{
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
};

constexpr int LF_FACESIZE = 32;

struct LOGFONT
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[LF_FACESIZE];
};
using LOGFONTA = LOGFONT;

struct TEXTMETRIC
{
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
using TEXTMETRICA = TEXTMETRIC;

struct LOGPEN
{
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
};

struct LOGBRUSH
{
    UINT lbStyle;
    COLORREF lbColor;
    LONG lbHatch;
};

// Raster operations: the middle byte is the truth table of pattern, source and destination.
constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD SRCPAINT = 0x00EE0086;
constexpr DWORD SRCAND = 0x008800C6;
constexpr DWORD SRCINVERT = 0x00660046;
constexpr DWORD SRCERASE = 0x00440328;
constexpr DWORD NOTSRCCOPY = 0x00330008;
constexpr DWORD NOTSRCERASE = 0x001100A6;
constexpr DWORD MERGEPAINT = 0x00BB0226;
constexpr DWORD PATCOPY = 0x00F00021;
constexpr DWORD PATINVERT = 0x005A0049;
constexpr DWORD DSTINVERT = 0x00550009;
constexpr DWORD BLACKNESS = 0x00000042;
constexpr DWORD WHITENESS = 0x00FF0062;

// Colour tables of device-independent bitmaps.
constexpr UINT DIB_RGB_COLORS = 0;
constexpr UINT DIB_PAL_COLORS = 1;
constexpr DWORD BI_RGB = 0;
constexpr DWORD BI_RLE8 = 1;
constexpr DWORD BI_RLE4 = 2;
constexpr DWORD BI_BITFIELDS = 3;

// Background modes.
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

// ExtTextOut options.
constexpr UINT ETO_OPAQUE = 0x0002;
constexpr UINT ETO_CLIPPED = 0x0004;

// GetDeviceCaps indexes.
constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;
constexpr int NUMCOLORS = 24;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
constexpr int SIZEPALETTE = 104;

// Pen styles.
constexpr UINT PS_SOLID = 0;
constexpr UINT PS_DASH = 1;
constexpr UINT PS_DOT = 2;
constexpr UINT PS_DASHDOT = 3;
constexpr UINT PS_DASHDOTDOT = 4;
constexpr UINT PS_NULL = 5;
constexpr UINT PS_INSIDEFRAME = 6;

// Brush styles.
constexpr UINT BS_SOLID = 0;
constexpr UINT BS_NULL = 1;
constexpr UINT BS_HOLLOW = BS_NULL;

// Stretch modes; every mode samples the nearest source pixel here.
constexpr int BLACKONWHITE = 1;
constexpr int WHITEONBLACK = 2;
constexpr int COLORONCOLOR = 3;
constexpr int HALFTONE = 4;

// Mapping modes.
constexpr int MM_TEXT = 1;
constexpr int MM_ISOTROPIC = 7;
constexpr int MM_ANISOTROPIC = 8;

// Region kinds returned by SelectClipRgn.
constexpr int ERROR = 0;
constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;

// Font weights, character sets, pitch and family.
constexpr LONG FW_DONTCARE = 0;
constexpr LONG FW_NORMAL = 400;
constexpr LONG FW_BOLD = 700;
constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE DEFAULT_PITCH = 0;
constexpr BYTE FIXED_PITCH = 1;
constexpr BYTE VARIABLE_PITCH = 2;
constexpr BYTE FF_DONTCARE = 0x00;
constexpr BYTE FF_ROMAN = 0x10;
constexpr BYTE FF_SWISS = 0x20;
constexpr BYTE FF_MODERN = 0x30;
constexpr BYTE OUT_DEFAULT_PRECIS = 0;
constexpr BYTE CLIP_DEFAULT_PRECIS = 0;
constexpr BYTE DEFAULT_QUALITY = 0;
constexpr BYTE NONANTIALIASED_QUALITY = 3;

// Windows and messages.

constexpr WORD LOWORD(std::uintptr_t v)
{
    return WORD(v & 0xFFFF);
}
constexpr WORD HIWORD(std::uintptr_t v)
{
    return WORD((v >> 16) & 0xFFFF);
}
constexpr LPARAM MAKELPARAM(int low, int high)
{
    return LPARAM(DWORD(WORD(low)) | (DWORD(WORD(high)) << 16));
}
constexpr WPARAM MAKEWPARAM(int low, int high)
{
    return WPARAM(DWORD(WORD(low)) | (DWORD(WORD(high)) << 16));
}
// Signed coordinates packed into a message parameter.
constexpr int GET_X_LPARAM(LPARAM l)
{
    return int(short(LOWORD(std::uintptr_t(l))));
}
constexpr int GET_Y_LPARAM(LPARAM l)
{
    return int(short(HIWORD(std::uintptr_t(l))));
}

struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_ENABLE = 0x000A;
constexpr UINT WM_SETTEXT = 0x000C;
constexpr UINT WM_GETTEXT = 0x000D;
constexpr UINT WM_GETTEXTLENGTH = 0x000E;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SHOWWINDOW = 0x0018;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_SETFONT = 0x0030;
constexpr UINT WM_GETFONT = 0x0031;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_GETDLGCODE = 0x0087;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_CTLCOLOREDIT = 0x0133;
constexpr UINT WM_CTLCOLORLISTBOX = 0x0134;
constexpr UINT WM_CTLCOLORBTN = 0x0135;
constexpr UINT WM_CTLCOLORDLG = 0x0136;
constexpr UINT WM_CTLCOLORSCROLLBAR = 0x0137;
constexpr UINT WM_CTLCOLORSTATIC = 0x0138;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_CAPTURECHANGED = 0x0215;
// The first number a window class may use for its own messages, and the first for an
// application's.
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

// What a control asks of the dialog's keyboard handling (WM_GETDLGCODE).
constexpr UINT DLGC_WANTARROWS = 0x0001;
constexpr UINT DLGC_WANTTAB = 0x0002;
constexpr UINT DLGC_WANTALLKEYS = 0x0004;
constexpr UINT DLGC_HASSETSEL = 0x0008;
constexpr UINT DLGC_DEFPUSHBUTTON = 0x0010;
constexpr UINT DLGC_UNDEFPUSHBUTTON = 0x0020;
constexpr UINT DLGC_RADIOBUTTON = 0x0040;
constexpr UINT DLGC_WANTCHARS = 0x0080;
constexpr UINT DLGC_STATIC = 0x0100;
constexpr UINT DLGC_BUTTON = 0x2000;

// WM_SIZE kinds.
constexpr UINT SIZE_RESTORED = 0;
// WM_ACTIVATE states.
constexpr UINT WA_INACTIVE = 0;
constexpr UINT WA_ACTIVE = 1;
constexpr UINT WA_CLICKACTIVE = 2;

// Mouse key flags in wParam.
constexpr UINT MK_LBUTTON = 0x0001;
constexpr UINT MK_RBUTTON = 0x0002;
constexpr UINT MK_SHIFT = 0x0004;
constexpr UINT MK_CONTROL = 0x0008;
constexpr UINT MK_MBUTTON = 0x0010;
// One notch of a mouse wheel.
constexpr int WHEEL_DELTA = 120;

// Virtual keys.
constexpr UINT VK_LBUTTON = 0x01;
constexpr UINT VK_RBUTTON = 0x02;
constexpr UINT VK_BACK = 0x08;
constexpr UINT VK_TAB = 0x09;
constexpr UINT VK_RETURN = 0x0D;
constexpr UINT VK_SHIFT = 0x10;
constexpr UINT VK_CONTROL = 0x11;
constexpr UINT VK_MENU = 0x12;
constexpr UINT VK_ESCAPE = 0x1B;
constexpr UINT VK_SPACE = 0x20;
constexpr UINT VK_PRIOR = 0x21;
constexpr UINT VK_NEXT = 0x22;
constexpr UINT VK_END = 0x23;
constexpr UINT VK_HOME = 0x24;
constexpr UINT VK_LEFT = 0x25;
constexpr UINT VK_UP = 0x26;
constexpr UINT VK_RIGHT = 0x27;
constexpr UINT VK_DOWN = 0x28;
constexpr UINT VK_INSERT = 0x2D;
constexpr UINT VK_DELETE = 0x2E;
constexpr UINT VK_APPS = 0x5D;
constexpr UINT VK_F1 = 0x70;
constexpr UINT VK_F10 = 0x79;
constexpr UINT VK_F11 = 0x7A;

// ShowWindow commands.
constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOW = 5;
constexpr int SW_SHOWNA = 8;

// SetWindowPos flags and places in the z-order.
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOREDRAW = 0x0008;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_SHOWWINDOW = 0x0040;
constexpr UINT SWP_HIDEWINDOW = 0x0080;
inline const HWND HWND_TOP = nullptr;

// A position or size that the window system chooses.
constexpr int CW_USEDEFAULT = int(0x80000000u);

// Window styles.
constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_DLGFRAME = 0x00400000;
constexpr DWORD WS_VSCROLL = 0x00200000;
constexpr DWORD WS_HSCROLL = 0x00100000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_THICKFRAME = 0x00040000;
constexpr DWORD WS_GROUP = 0x00020000;
constexpr DWORD WS_TABSTOP = 0x00010000;
constexpr DWORD WS_OVERLAPPEDWINDOW = 0x00CF0000;
// Extended styles: a window that clicks do not bring to the front (drop-down lists).
constexpr DWORD WS_EX_NOACTIVATE = 0x08000000;
// Dialog styles.
constexpr DWORD DS_MODALFRAME = 0x00000080;
constexpr DWORD DS_CENTER = 0x00000800;

// Buttons: styles, check states, messages and notifications.
constexpr DWORD BS_PUSHBUTTON = 0x0;
constexpr DWORD BS_DEFPUSHBUTTON = 0x1;
constexpr DWORD BS_CHECKBOX = 0x2;
constexpr DWORD BS_AUTOCHECKBOX = 0x3;
constexpr DWORD BS_RADIOBUTTON = 0x4;
constexpr DWORD BS_3STATE = 0x5;
constexpr DWORD BS_AUTO3STATE = 0x6;
constexpr DWORD BS_GROUPBOX = 0x7;
constexpr DWORD BS_AUTORADIOBUTTON = 0x9;
constexpr DWORD BS_TYPEMASK = 0xF;
constexpr UINT BST_UNCHECKED = 0;
constexpr UINT BST_CHECKED = 1;
constexpr UINT BST_INDETERMINATE = 2;
constexpr UINT BST_PUSHED = 4;
constexpr UINT BST_FOCUS = 8;
constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;
constexpr UINT BM_GETSTATE = 0x00F2;
constexpr UINT BM_SETSTATE = 0x00F3;
constexpr UINT BM_SETSTYLE = 0x00F4;
constexpr UINT BM_CLICK = 0x00F5;
constexpr UINT BN_CLICKED = 0;
constexpr UINT BN_DOUBLECLICKED = 5;
constexpr UINT BN_SETFOCUS = 6;
constexpr UINT BN_KILLFOCUS = 7;

// Static controls.
constexpr DWORD SS_LEFT = 0x0;
constexpr DWORD SS_CENTER = 0x1;
constexpr DWORD SS_RIGHT = 0x2;
constexpr DWORD SS_BLACKRECT = 0x4;
constexpr DWORD SS_GRAYRECT = 0x5;
constexpr DWORD SS_WHITERECT = 0x6;
constexpr DWORD SS_BLACKFRAME = 0x7;
constexpr DWORD SS_GRAYFRAME = 0x8;
constexpr DWORD SS_WHITEFRAME = 0x9;
constexpr DWORD SS_SIMPLE = 0xB;
constexpr DWORD SS_LEFTNOWORDWRAP = 0xC;
constexpr DWORD SS_TYPEMASK = 0x1F;
constexpr DWORD SS_NOPREFIX = 0x80;
constexpr DWORD SS_NOTIFY = 0x100;
constexpr DWORD SS_CENTERIMAGE = 0x200;
constexpr DWORD SS_SUNKEN = 0x1000;

// Edit controls.
constexpr DWORD ES_LEFT = 0x0000;
constexpr DWORD ES_CENTER = 0x0001;
constexpr DWORD ES_RIGHT = 0x0002;
constexpr DWORD ES_MULTILINE = 0x0004;
constexpr DWORD ES_UPPERCASE = 0x0008;
constexpr DWORD ES_LOWERCASE = 0x0010;
constexpr DWORD ES_PASSWORD = 0x0020;
constexpr DWORD ES_AUTOHSCROLL = 0x0080;
constexpr DWORD ES_READONLY = 0x0800;
constexpr DWORD ES_NUMBER = 0x2000;
constexpr UINT EM_GETSEL = 0x00B0;
constexpr UINT EM_SETSEL = 0x00B1;
constexpr UINT EM_GETMODIFY = 0x00B8;
constexpr UINT EM_SETMODIFY = 0x00B9;
constexpr UINT EM_REPLACESEL = 0x00C2;
constexpr UINT EM_LIMITTEXT = 0x00C5;
constexpr UINT EM_SETLIMITTEXT = EM_LIMITTEXT;
constexpr UINT EM_SETREADONLY = 0x00CF;
constexpr UINT EM_GETLIMITTEXT = 0x00D5;
constexpr UINT EN_SETFOCUS = 0x0100;
constexpr UINT EN_KILLFOCUS = 0x0200;
constexpr UINT EN_CHANGE = 0x0300;
constexpr UINT EN_UPDATE = 0x0400;
constexpr UINT EN_MAXTEXT = 0x0501;

// List boxes.
constexpr DWORD LBS_NOTIFY = 0x0001;
constexpr DWORD LBS_SORT = 0x0002;
constexpr DWORD LBS_OWNERDRAWFIXED = 0x0010;
constexpr DWORD LBS_HASSTRINGS = 0x0040;
constexpr DWORD LBS_NOINTEGRALHEIGHT = 0x0100;
constexpr DWORD LBS_WANTKEYBOARDINPUT = 0x0400;
constexpr DWORD LBS_DISABLENOSCROLL = 0x1000;
constexpr DWORD LBS_STANDARD = 0x00A00003;
constexpr UINT LB_ADDSTRING = 0x0180;
constexpr UINT LB_INSERTSTRING = 0x0181;
constexpr UINT LB_DELETESTRING = 0x0182;
constexpr UINT LB_RESETCONTENT = 0x0184;
constexpr UINT LB_SETCURSEL = 0x0186;
constexpr UINT LB_GETSEL = 0x0187;
constexpr UINT LB_GETCURSEL = 0x0188;
constexpr UINT LB_GETTEXT = 0x0189;
constexpr UINT LB_GETTEXTLEN = 0x018A;
constexpr UINT LB_GETCOUNT = 0x018B;
constexpr UINT LB_SELECTSTRING = 0x018C;
constexpr UINT LB_GETTOPINDEX = 0x018E;
constexpr UINT LB_FINDSTRING = 0x018F;
constexpr UINT LB_SETTOPINDEX = 0x0197;
constexpr UINT LB_GETITEMRECT = 0x0198;
constexpr UINT LB_GETITEMDATA = 0x0199;
constexpr UINT LB_SETITEMDATA = 0x019A;
constexpr UINT LB_SETITEMHEIGHT = 0x01A0;
constexpr UINT LB_GETITEMHEIGHT = 0x01A1;
constexpr UINT LB_FINDSTRINGEXACT = 0x01A2;
constexpr UINT LB_ITEMFROMPOINT = 0x01A9;
constexpr int LB_OKAY = 0;
constexpr int LB_ERR = -1;
constexpr UINT LBN_SELCHANGE = 1;
constexpr UINT LBN_DBLCLK = 2;
constexpr UINT LBN_SELCANCEL = 3;
constexpr UINT LBN_SETFOCUS = 4;
constexpr UINT LBN_KILLFOCUS = 5;

// Combo boxes.
constexpr DWORD CBS_SIMPLE = 0x0001;
constexpr DWORD CBS_DROPDOWN = 0x0002;
constexpr DWORD CBS_DROPDOWNLIST = 0x0003;
constexpr DWORD CBS_AUTOHSCROLL = 0x0040;
constexpr DWORD CBS_SORT = 0x0100;
constexpr DWORD CBS_HASSTRINGS = 0x0200;
constexpr UINT CB_GETEDITSEL = 0x0140;
constexpr UINT CB_LIMITTEXT = 0x0141;
constexpr UINT CB_SETEDITSEL = 0x0142;
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_GETLBTEXT = 0x0148;
constexpr UINT CB_GETLBTEXTLEN = 0x0149;
constexpr UINT CB_INSERTSTRING = 0x014A;
constexpr UINT CB_RESETCONTENT = 0x014B;
constexpr UINT CB_FINDSTRING = 0x014C;
constexpr UINT CB_SELECTSTRING = 0x014D;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr UINT CB_SHOWDROPDOWN = 0x014F;
constexpr UINT CB_GETITEMDATA = 0x0150;
constexpr UINT CB_SETITEMDATA = 0x0151;
constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
constexpr int CB_OKAY = 0;
constexpr int CB_ERR = -1;
constexpr UINT CBN_SELCHANGE = 1;
constexpr UINT CBN_DBLCLK = 2;
constexpr UINT CBN_SETFOCUS = 3;
constexpr UINT CBN_KILLFOCUS = 4;
constexpr UINT CBN_EDITCHANGE = 5;
constexpr UINT CBN_DROPDOWN = 7;
constexpr UINT CBN_CLOSEUP = 8;
constexpr UINT CBN_SELENDOK = 9;
constexpr UINT CBN_SELENDCANCEL = 10;

// Scroll bars.
constexpr DWORD SBS_HORZ = 0x0000;
constexpr DWORD SBS_VERT = 0x0001;
constexpr int SB_HORZ = 0;
constexpr int SB_VERT = 1;
constexpr int SB_CTL = 2;
constexpr UINT SB_LINEUP = 0;
constexpr UINT SB_LINEDOWN = 1;
constexpr UINT SB_PAGEUP = 2;
constexpr UINT SB_PAGEDOWN = 3;
constexpr UINT SB_THUMBPOSITION = 4;
constexpr UINT SB_THUMBTRACK = 5;
constexpr UINT SB_TOP = 6;
constexpr UINT SB_BOTTOM = 7;
constexpr UINT SB_ENDSCROLL = 8;
constexpr UINT SIF_RANGE = 0x0001;
constexpr UINT SIF_PAGE = 0x0002;
constexpr UINT SIF_POS = 0x0004;
constexpr UINT SIF_DISABLENOSCROLL = 0x0008;
constexpr UINT SIF_TRACKPOS = 0x0010;
constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;
constexpr UINT SBM_SETPOS = 0x00E0;
constexpr UINT SBM_GETPOS = 0x00E1;
constexpr UINT SBM_SETRANGE = 0x00E2;
constexpr UINT SBM_GETRANGE = 0x00E3;
constexpr UINT SBM_SETSCROLLINFO = 0x00E9;
constexpr UINT SBM_GETSCROLLINFO = 0x00EA;

struct SCROLLINFO
{
    UINT cbSize;
    UINT fMask;
    int nMin;
    int nMax;
    UINT nPage;
    int nPos;
    int nTrackPos;
};

// Message boxes: buttons, icons, default button, and the answers of every dialog.
constexpr UINT MB_OK = 0x0000;
constexpr UINT MB_OKCANCEL = 0x0001;
constexpr UINT MB_ABORTRETRYIGNORE = 0x0002;
constexpr UINT MB_YESNOCANCEL = 0x0003;
constexpr UINT MB_YESNO = 0x0004;
constexpr UINT MB_RETRYCANCEL = 0x0005;
constexpr UINT MB_ICONHAND = 0x0010;
constexpr UINT MB_ICONQUESTION = 0x0020;
constexpr UINT MB_ICONEXCLAMATION = 0x0030;
constexpr UINT MB_ICONASTERISK = 0x0040;
constexpr UINT MB_ICONSTOP = MB_ICONHAND;
constexpr UINT MB_ICONERROR = MB_ICONHAND;
constexpr UINT MB_ICONWARNING = MB_ICONEXCLAMATION;
constexpr UINT MB_ICONINFORMATION = MB_ICONASTERISK;
constexpr UINT MB_DEFBUTTON1 = 0x0000;
constexpr UINT MB_DEFBUTTON2 = 0x0100;
constexpr UINT MB_DEFBUTTON3 = 0x0200;
constexpr UINT MB_TYPEMASK = 0x000F;
constexpr UINT MB_ICONMASK = 0x00F0;
constexpr UINT MB_DEFMASK = 0x0F00;
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;
constexpr int IDHELP = 9;

// System cursors.
constexpr int IDC_ARROW = 32512;
constexpr int IDC_IBEAM = 32513;
constexpr int IDC_WAIT = 32514;
constexpr int IDC_CROSS = 32515;
constexpr int IDC_UPARROW = 32516;
constexpr int IDC_SIZENWSE = 32642;
constexpr int IDC_SIZENESW = 32643;
constexpr int IDC_SIZEWE = 32644;
constexpr int IDC_SIZENS = 32645;
constexpr int IDC_SIZEALL = 32646;
constexpr int IDC_NO = 32648;
constexpr int IDC_HAND = 32649;
constexpr int IDC_APPSTARTING = 32650;

// Menus.
constexpr UINT MF_STRING = 0x0000;
constexpr UINT MF_ENABLED = 0x0000;
constexpr UINT MF_UNCHECKED = 0x0000;
constexpr UINT MF_BYCOMMAND = 0x0000;
constexpr UINT MF_GRAYED = 0x0001;
constexpr UINT MF_DISABLED = 0x0002;
constexpr UINT MF_CHECKED = 0x0008;
constexpr UINT MF_POPUP = 0x0010;
constexpr UINT MF_BYPOSITION = 0x0400;
constexpr UINT MF_SEPARATOR = 0x0800;
constexpr UINT TPM_LEFTALIGN = 0x0000;
constexpr UINT TPM_CENTERALIGN = 0x0004;
constexpr UINT TPM_RIGHTALIGN = 0x0008;
constexpr UINT TPM_TOPALIGN = 0x0000;
constexpr UINT TPM_VCENTERALIGN = 0x0010;
constexpr UINT TPM_BOTTOMALIGN = 0x0020;
constexpr UINT TPM_LEFTBUTTON = 0x0000;
constexpr UINT TPM_RIGHTBUTTON = 0x0002;
constexpr UINT TPM_NONOTIFY = 0x0080;
constexpr UINT TPM_RETURNCMD = 0x0100;

// DrawText formats.
constexpr UINT DT_TOP = 0x0000;
constexpr UINT DT_LEFT = 0x0000;
constexpr UINT DT_CENTER = 0x0001;
constexpr UINT DT_RIGHT = 0x0002;
constexpr UINT DT_VCENTER = 0x0004;
constexpr UINT DT_BOTTOM = 0x0008;
constexpr UINT DT_WORDBREAK = 0x0010;
constexpr UINT DT_SINGLELINE = 0x0020;
constexpr UINT DT_EXPANDTABS = 0x0040;
constexpr UINT DT_NOCLIP = 0x0100;
constexpr UINT DT_CALCRECT = 0x0400;
constexpr UINT DT_NOPREFIX = 0x0800;
constexpr UINT DT_END_ELLIPSIS = 0x8000;

// Help commands (WinHelpA).
constexpr UINT HELP_CONTEXT = 0x0001;
constexpr UINT HELP_QUIT = 0x0002;
constexpr UINT HELP_KEY = 0x0101;

// System colours (GetSysColor).
constexpr int COLOR_SCROLLBAR = 0;
constexpr int COLOR_BACKGROUND = 1;
constexpr int COLOR_ACTIVECAPTION = 2;
constexpr int COLOR_MENU = 4;
constexpr int COLOR_WINDOW = 5;
constexpr int COLOR_WINDOWFRAME = 6;
constexpr int COLOR_MENUTEXT = 7;
constexpr int COLOR_WINDOWTEXT = 8;
constexpr int COLOR_CAPTIONTEXT = 9;
constexpr int COLOR_HIGHLIGHT = 13;
constexpr int COLOR_HIGHLIGHTTEXT = 14;
constexpr int COLOR_BTNFACE = 15;
constexpr int COLOR_BTNSHADOW = 16;
constexpr int COLOR_GRAYTEXT = 17;
constexpr int COLOR_BTNTEXT = 18;
constexpr int COLOR_BTNHIGHLIGHT = 20;
constexpr int COLOR_3DDKSHADOW = 21;
constexpr int COLOR_3DLIGHT = 22;
constexpr int COLOR_INFOTEXT = 23;
constexpr int COLOR_INFOBK = 24;
constexpr int COLOR_3DFACE = COLOR_BTNFACE;

// System metrics (GetSystemMetrics).
constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SM_CXVSCROLL = 2;
constexpr int SM_CYHSCROLL = 3;
constexpr int SM_CYCAPTION = 4;
constexpr int SM_CXBORDER = 5;
constexpr int SM_CYBORDER = 6;
constexpr int SM_CYVTHUMB = 9;
constexpr int SM_CXHTHUMB = 10;
constexpr int SM_CXCURSOR = 13;
constexpr int SM_CYCURSOR = 14;
constexpr int SM_CYMENU = 15;
constexpr int SM_CYVSCROLL = 20;
constexpr int SM_CXHSCROLL = 21;
constexpr int SM_CXDOUBLECLK = 36;
constexpr int SM_CYDOUBLECLK = 37;
