#include "platform/FontInstance.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <map>
#include <sstream>
#include <vector>

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H
#include FT_DRIVER_H
#include FT_MODULE_H
#include FT_TRUETYPE_TABLES_H

#include "platform/DebugStream.h"

namespace {

// The FreeType library, shared by every face so that it outlives the last of them.
struct FreeTypeLibrary
{
    FT_Library Library = nullptr;

    FreeTypeLibrary()
    {
        if (FT_Init_FreeType(&Library) != 0) {
            Library = nullptr;
            return;
        }
        // Version 35 hints as the classic black-and-white renderer does, and keeps advances
        // equal for both render modes.
        FT_UInt version = TT_INTERPRETER_VERSION_35;
        FT_Property_Set(Library, "truetype", "interpreter-version", &version);
    }
    ~FreeTypeLibrary()
    {
        if (Library) {
            FT_Done_FreeType(Library);
        }
    }
};

// Everything shared: the library, fontconfig, and the instances made so far.
struct FontSystem
{
    std::shared_ptr<FreeTypeLibrary> pLibrary = std::make_shared<FreeTypeLibrary>();
    std::map<std::string, std::shared_ptr<FontInstance>> Instances;
    bool bFontconfig = FcInit() == FcTrue;

    ~FontSystem()
    {
        Instances.clear();
        if (bFontconfig) {
            FcFini();
        }
    }
};

FontSystem& System()
{
    static FontSystem system;
    return system;
}

// Fonts are few; a program that makes ever new sizes starts the cache afresh now and then.
constexpr std::size_t kMaxInstances = 256;

// Unicode of the characters 0x80 to 0x9F of the Windows Latin 1 code page; the others are
// the same as in Latin 1. Holes keep their own value.
constexpr FT_ULong kWindows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

FT_ULong UnicodeOf(BYTE c)
{
    return c >= 0x80 && c < 0xA0 ? kWindows1252[c - 0x80] : FT_ULong(c);
}

// Frequencies per thousand of the lower-case letters a to z and the space in English text;
// the average character width is the weighted mean of their widths.
constexpr int kLetterWeights[26] = {64, 14, 27, 35, 100, 20, 14, 42, 63, 3,  6, 35, 20,
                                    56, 56, 17, 4,  49,  56, 71, 31, 10, 18, 3, 18, 2};
constexpr int kSpaceWeight = 166;

// a * b / c rounded to the nearest, as the font mapper scales.
long MulDiv(long a, long b, long c)
{
    if (c == 0) {
        return 0;
    }
    long n = a * b;
    return (n >= 0 ? n + c / 2 : n - c / 2) / c;
}

bool IsStyleWord(const std::string& w, bool& bold, bool& italic)
{
    std::string lower(w);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char ch) { return char(std::tolower(ch)); });
    if (lower == "bold") {
        bold = true;
    } else if (lower == "italic" || lower == "oblique") {
        italic = true;
    } else if (lower != "regular" && lower != "normal") {
        return false;
    }
    return true;
}

struct FaceRequest
{
    std::string Family;
    bool bBold = false;
    bool bItalic = false;
    int Weight = FW_NORMAL;
};

// Splits "Arial Bold Italic" into the family and its style, and fills in what the
// description leaves open.
FaceRequest RequestFor(const LOGFONT& font)
{
    FaceRequest request;
    std::string face(font.lfFaceName, strnlen(font.lfFaceName, LF_FACESIZE));
    std::istringstream words(face);
    std::vector<std::string> parts;
    for (std::string w; words >> w;) {
        parts.push_back(w);
    }
    while (parts.size() > 1 && IsStyleWord(parts.back(), request.bBold, request.bItalic)) {
        parts.pop_back();
    }
    for (const std::string& w : parts) {
        request.Family += (request.Family.empty() ? "" : " ") + w;
    }
    if (request.Family.empty()) {
        BYTE family = font.lfPitchAndFamily & 0xF0;
        if (family == FF_ROMAN) {
            request.Family = "Times New Roman";
        } else if (family == FF_MODERN || (font.lfPitchAndFamily & 0x03) == FIXED_PITCH) {
            request.Family = "Courier New";
        } else {
            request.Family = "Arial";
        }
    }
    request.bItalic = request.bItalic || font.lfItalic;
    request.Weight = font.lfWeight > 0 ? int(font.lfWeight) : FW_NORMAL;
    if (request.bBold && request.Weight <= FW_NORMAL) {
        request.Weight = FW_BOLD;
    }
    return request;
}

struct FaceFile
{
    std::string Path;
    int Index = 0;
    std::string Family;
    std::string Style;
};

bool FindFaceFile(const FaceRequest& request, FaceFile& file)
{
    FcPattern* pattern = FcPatternCreate();
    if (!pattern) {
        return false;
    }
    FcPatternAddString(pattern, FC_FAMILY,
                       reinterpret_cast<const FcChar8*>(request.Family.c_str()));
    FcPatternAddInteger(pattern, FC_SLANT, request.bItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddInteger(pattern, FC_WEIGHT, FcWeightFromOpenType(request.Weight));
    FcPatternAddBool(pattern, FC_SCALABLE, FcTrue);
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult result = FcResultNoMatch;
    FcPattern* match = FcFontMatch(nullptr, pattern, &result);
    FcPatternDestroy(pattern);
    if (!match) {
        return false;
    }
    FcChar8* text = nullptr;
    bool found = FcPatternGetString(match, FC_FILE, 0, &text) == FcResultMatch;
    if (found) {
        file.Path = reinterpret_cast<const char*>(text);
        int index = 0;
        if (FcPatternGetInteger(match, FC_INDEX, 0, &index) == FcResultMatch) {
            file.Index = index;
        }
        if (FcPatternGetString(match, FC_FAMILY, 0, &text) == FcResultMatch) {
            file.Family = reinterpret_cast<const char*>(text);
        }
        if (FcPatternGetString(match, FC_STYLE, 0, &text) == FcResultMatch) {
            file.Style = reinterpret_cast<const char*>(text);
        }
    }
    FcPatternDestroy(match);
    return found;
}

std::string CacheKey(const LOGFONT& f)
{
    std::ostringstream key;
    std::string face(f.lfFaceName, strnlen(f.lfFaceName, LF_FACESIZE));
    std::transform(face.begin(), face.end(), face.begin(),
                   [](unsigned char ch) { return char(std::tolower(ch)); });
    key << face << '|' << f.lfHeight << '|' << f.lfWidth << '|' << f.lfWeight << '|'
        << int(f.lfItalic) << '|' << int(f.lfPitchAndFamily);
    return key.str();
}

} // namespace

struct FontInstance::Impl
{
    std::shared_ptr<FreeTypeLibrary> pLibrary;
    FT_Face Face = nullptr;
    std::array<FT_UInt, 256> aGlyphIndexes{};

    ~Impl()
    {
        if (Face) {
            FT_Done_Face(Face);
        }
    }

    // Loads a glyph hinted for black and white, the one mode used for measuring and drawing.
    bool Load(BYTE c) const
    {
        return FT_Load_Glyph(Face, aGlyphIndexes[c], FT_LOAD_TARGET_MONO) == 0;
    }
};

std::shared_ptr<FontInstance> FontInstance::For(const LOGFONT& font)
{
    FontSystem& system = System();
    std::string key = CacheKey(font);
    auto cached = system.Instances.find(key);
    if (cached != system.Instances.end()) {
        return cached->second;
    }
    if (!system.pLibrary->Library || !system.bFontconfig) {
        return nullptr;
    }
    FaceRequest request = RequestFor(font);
    FaceFile file;
    if (!FindFaceFile(request, file)) {
        dbstream << "FontInstance: no face for \"" << request.Family << "\"" << dbendl;
        return nullptr;
    }
    auto impl = std::make_unique<Impl>();
    impl->pLibrary = system.pLibrary;
    if (FT_New_Face(impl->pLibrary->Library, file.Path.c_str(), file.Index, &impl->Face) != 0) {
        impl->Face = nullptr;
        dbstream << "FontInstance: cannot open " << file.Path << dbendl;
        return nullptr;
    }
    for (int c = 0; c < 256; ++c) {
        impl->aGlyphIndexes[std::size_t(c)] = FT_Get_Char_Index(impl->Face, UnicodeOf(BYTE(c)));
    }
    std::shared_ptr<FontInstance> instance(new FontInstance(std::move(impl)));
    instance->FileName = file.Path;
    instance->nFaceIndex = file.Index;
    instance->FamilyName = file.Family;
    instance->StyleName = file.Style;
    instance->ComputeMetrics(font);
    if (system.Instances.size() >= kMaxInstances) {
        system.Instances.clear();
    }
    system.Instances[key] = instance;
    return instance;
}

FontInstance::FontInstance(std::unique_ptr<Impl> impl) : pImpl(std::move(impl))
{}

FontInstance::~FontInstance() = default;

void FontInstance::ComputeMetrics(const LOGFONT& font)
{
    FT_Face face = pImpl->Face;
    auto* os2 = static_cast<TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    auto* hhea = static_cast<TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
    long unitsPerEm = face->units_per_EM > 0 ? face->units_per_EM : 2048;
    long winAscent = os2 ? long(os2->usWinAscent) : long(face->ascender);
    long winDescent = os2 ? long(os2->usWinDescent) : -long(face->descender);
    long cell = std::max(winAscent + winDescent, 1L);

    long ppem = 12;
    if (font.lfHeight < 0) {
        ppem = -long(font.lfHeight);
    } else if (font.lfHeight > 0) {
        ppem = MulDiv(unitsPerEm, font.lfHeight, cell);
    }
    ppem = std::clamp(ppem, 1L, 4000L);

    // The weighted average width in font units, for tmAveCharWidth and for a set width.
    long weighted = 0;
    auto unitsAdvance = [&](BYTE c) {
        FT_Fixed advance = 0;
        FT_Get_Advance(face, pImpl->aGlyphIndexes[c], FT_LOAD_NO_SCALE, &advance);
        return long(advance);
    };
    for (int i = 0; i < 26; ++i) {
        weighted += kLetterWeights[i] * unitsAdvance(BYTE('a' + i));
    }
    weighted += kSpaceWeight * unitsAdvance(' ');
    long averageUnits = std::max(weighted / 1000, 1L);

    long xppem = ppem;
    if (font.lfWidth != 0) {
        xppem =
            std::clamp(MulDiv(std::abs(long(font.lfWidth)), unitsPerEm, averageUnits), 1L, 4000L);
    }
    FT_Set_Pixel_Sizes(face, FT_UInt(xppem), FT_UInt(ppem));
    nPixelsPerEm = int(ppem);
    nXPixelsPerEm = int(xppem);
    FT_Fixed yScale = face->size->metrics.y_scale;
    FT_Fixed xScale = face->size->metrics.x_scale;
    auto scaled = [](long units, FT_Fixed scale) {
        return LONG((FT_MulFix(units, scale) + 32) >> 6);
    };

    // Advances are the designed widths rounded to whole pixels, as the font mapper gives them
    // for these faces. The hinting of the Liberation fonts would narrow some letters ("X" by
    // two pixels at 13 pixels per em) and so break their sameness with the fonts they replace.
    for (int c = 0; c < 256; ++c) {
        aAdvances[std::size_t(c)] = int(scaled(unitsAdvance(BYTE(c)), xScale));
    }

    TEXTMETRIC& m = Metrics;
    m.tmAscent = scaled(winAscent, yScale);
    m.tmDescent = scaled(winDescent, yScale);
    m.tmHeight = m.tmAscent + m.tmDescent;
    m.tmInternalLeading = std::max<LONG>(scaled(cell - unitsPerEm, yScale), 0);
    long lineGap = 0;
    if (hhea) {
        lineGap = hhea->Line_Gap - (cell - (hhea->Ascender - hhea->Descender));
    }
    m.tmExternalLeading = std::max<LONG>(scaled(std::max(lineGap, 0L), yScale), 0);
    m.tmAveCharWidth = scaled(averageUnits, xScale);
    m.tmMaxCharWidth = *std::max_element(aAdvances.begin() + 0x20, aAdvances.end());
    m.tmWeight = font.lfWeight > 0 ? font.lfWeight : FW_NORMAL;
    m.tmOverhang = 0;
    m.tmDigitizedAspectX = 96;
    m.tmDigitizedAspectY = 96;
    m.tmFirstChar = 0x20;
    m.tmLastChar = 0xFF;
    m.tmDefaultChar = 0x1F;
    m.tmBreakChar = 0x20;
    m.tmItalic = (face->style_flags & FT_STYLE_FLAG_ITALIC) ? 1 : 0;
    m.tmUnderlined = font.lfUnderline;
    m.tmStruckOut = font.lfStrikeOut;
    bool fixed = FT_IS_FIXED_WIDTH(face);
    BYTE family =
        fixed ? FF_MODERN : (FamilyName.find("Serif") != std::string::npos ? FF_ROMAN : FF_SWISS);
    // The low bit set means variable pitch; 0x02 vector, 0x04 TrueType.
    m.tmPitchAndFamily = BYTE(family | 0x04 | 0x02 | (fixed ? 0 : 0x01));
    m.tmCharSet = ANSI_CHARSET;
}

unsigned FontInstance::GetGlyphIndex(BYTE c) const
{
    return unsigned(pImpl->aGlyphIndexes[c]);
}

TSize FontInstance::Extent(const char* text, int count) const
{
    int width = 0;
    for (int i = 0; i < count; ++i) {
        width += aAdvances[BYTE(text[i])];
    }
    return TSize(width, Metrics.tmHeight);
}

const Glyph& FontInstance::GetGlyph(BYTE c, bool smooth) const
{
    std::unique_ptr<Glyph>& slot = smooth ? aSmoothGlyphs[c] : aMonoGlyphs[c];
    if (slot) {
        return *slot;
    }
    slot = std::make_unique<Glyph>();
    FT_Face face = pImpl->Face;
    if (!pImpl->Load(c) ||
        FT_Render_Glyph(face->glyph, smooth ? FT_RENDER_MODE_NORMAL : FT_RENDER_MODE_MONO) != 0) {
        return *slot;
    }
    const FT_Bitmap& bitmap = face->glyph->bitmap;
    Glyph& g = *slot;
    g.Left = face->glyph->bitmap_left;
    g.Top = face->glyph->bitmap_top;
    g.Width = int(bitmap.width);
    g.Rows = int(bitmap.rows);
    g.Coverage.assign(std::size_t(g.Width) * std::size_t(g.Rows), 0);
    for (int y = 0; y < g.Rows; ++y) {
        const unsigned char* row = bitmap.buffer + long(y) * bitmap.pitch;
        for (int x = 0; x < g.Width; ++x) {
            BYTE value;
            if (bitmap.pixel_mode == FT_PIXEL_MODE_MONO) {
                value = (row[x >> 3] & (0x80 >> (x & 7))) ? 255 : 0;
            } else {
                value = row[x];
            }
            g.Coverage[std::size_t(y) * std::size_t(g.Width) + std::size_t(x)] = value;
        }
    }
    return g;
}
