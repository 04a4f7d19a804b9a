#include "platform/PrintDocument.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <cairo-ft.h>
#include <cairo-pdf.h>
#include <cairo.h>
#include <fontconfig/fontconfig.h>

#include "platform/DebugStream.h"
#include "platform/FontInstance.h"
#include "platform/TDC.h"
#include "platform/TPrintDC.h"

namespace {

// Unicode of the characters 0x80 to 0x9F of the Windows Latin 1 code page, in which the
// component's text is written; the others are those of Latin 1.
constexpr unsigned kWindows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// One character in UTF-8, as cairo takes text.
std::string Utf8Of(BYTE c)
{
    const unsigned u = c >= 0x80 && c < 0xA0 ? kWindows1252[c - 0x80] : unsigned(c);
    std::string out;
    if (u < 0x80) {
        out += char(u);
    } else if (u < 0x800) {
        out += char(0xC0 | (u >> 6));
        out += char(0x80 | (u & 0x3F));
    } else {
        out += char(0xE0 | (u >> 12));
        out += char(0x80 | ((u >> 6) & 0x3F));
        out += char(0x80 | (u & 0x3F));
    }
    return out;
}

std::string Utf8Of(const std::string& text)
{
    std::string out;
    for (char c : text) {
        out += Utf8Of(BYTE(c));
    }
    return out;
}

constexpr double kMaxChannel = 255.0;

} // namespace

// The PDF surface of an open document and the faces its text has used.
struct PrintDocument::Cairo
{
    cairo_surface_t* pSurface = nullptr;
    std::map<std::string, cairo_font_face_t*> Faces;

    ~Cairo()
    {
        for (auto& face : Faces) {
            cairo_font_face_destroy(face.second);
        }
        if (pSurface) {
            cairo_surface_destroy(pSurface);
        }
    }

    // cairo's face for the file of a font instance, made at first use.
    cairo_font_face_t* FaceFor(const FontInstance& font)
    {
        const std::string key = font.GetFileName() + "#" + std::to_string(font.GetFaceIndex());
        auto found = Faces.find(key);
        if (found != Faces.end()) {
            return found->second;
        }
        FcPattern* pattern = FcPatternCreate();
        if (!pattern) {
            return nullptr;
        }
        FcPatternAddString(pattern, FC_FILE,
                           reinterpret_cast<const FcChar8*>(font.GetFileName().c_str()));
        FcPatternAddInteger(pattern, FC_INDEX, font.GetFaceIndex());
        cairo_font_face_t* face = cairo_ft_font_face_create_for_pattern(pattern);
        FcPatternDestroy(pattern);
        if (cairo_font_face_status(face) != CAIRO_STATUS_SUCCESS) {
            cairo_font_face_destroy(face);
            return nullptr;
        }
        Faces[key] = face;
        return face;
    }
};

PrintDocument::PrintDocument(const TPrinter& printer)
    : Printer(printer),
      Page(printer.GetPageSize().cx, printer.GetPageSize().cy, PixelFormat::Rgb32),
      OutputFile(printer.GetOutputFile())
{}

PrintDocument::~PrintDocument()
{
    if (IsInDocument()) {
        EndDoc();
    }
}

int PrintDocument::StartDoc(const std::string& name, const std::string& output)
{
    if (IsInDocument()) {
        Error = "a document is already open";
        return SP_ERROR;
    }
    if (output.empty()) {
        Error = "no file to print to";
        return SP_ERROR;
    }
    // cairo opens the file at once; the system's reason survives it in errno.
    errno = 0;
    auto cairo = std::make_unique<Cairo>();
    cairo->pSurface = cairo_pdf_surface_create(output.c_str(), Printer.GetPaperWidthPoints(),
                                               Printer.GetPaperHeightPoints());
    if (cairo_surface_status(cairo->pSurface) != CAIRO_STATUS_SUCCESS) {
        const int reason = errno;
        Error = "cannot write " + output + ": " +
                (reason != 0 ? std::strerror(reason)
                             : cairo_status_to_string(cairo_surface_status(cairo->pSurface)));
        dbstream << "PrintDocument: " << Error << dbendl;
        return SP_ERROR;
    }
    Error.clear();
    cairo_pdf_surface_set_metadata(cairo->pSurface, CAIRO_PDF_METADATA_TITLE, Utf8Of(name).c_str());
    cairo_pdf_surface_set_metadata(cairo->pSurface, CAIRO_PDF_METADATA_CREATOR, "Orbiscope");
    pCairo = std::move(cairo);
    OutputFile = output;
    nPages = 0;
    return 1;
}

int PrintDocument::StartPage()
{
    if (!IsInDocument() || bInPage) {
        return SP_ERROR;
    }
    // White paper.
    for (int y = 0; y < Page.Height(); ++y) {
        std::uint32_t* row = reinterpret_cast<std::uint32_t*>(Page.Row(y));
        std::fill(row, row + Page.Width(), std::uint32_t(0x00FFFFFF));
    }
    aText.clear();
    bInPage = true;
    return 1;
}

int PrintDocument::EndPage()
{
    if (!bInPage) {
        return SP_ERROR;
    }
    bInPage = false;
    const bool written = WritePage();
    aText.clear();
    if (!written) {
        return SP_ERROR;
    }
    ++nPages;
    return 1;
}

int PrintDocument::EndDoc()
{
    if (!IsInDocument()) {
        return SP_ERROR;
    }
    if (bInPage) {
        EndPage();
    }
    cairo_surface_finish(pCairo->pSurface);
    const cairo_status_t status = cairo_surface_status(pCairo->pSurface);
    CloseCairo();
    if (status != CAIRO_STATUS_SUCCESS) {
        Error = "cannot finish " + OutputFile + ": " + cairo_status_to_string(status);
        dbstream << "PrintDocument: " << Error << dbendl;
        return SP_ERROR;
    }
    return 1;
}

int PrintDocument::AbortDoc()
{
    if (!IsInDocument()) {
        return SP_ERROR;
    }
    bInPage = false;
    aText.clear();
    cairo_surface_finish(pCairo->pSurface);
    CloseCairo();
    std::remove(OutputFile.c_str());
    return 1;
}

void PrintDocument::CloseCairo()
{
    pCairo.reset();
}

void PrintDocument::KeepText(TextRun&& run)
{
    if (bInPage && run.pFont && !run.Text.empty()) {
        aText.push_back(std::move(run));
    }
}

bool PrintDocument::WritePage()
{
    // A picture of cairo's own, so that nothing of it depends on the page drawn next. The
    // surface's pixels are what cairo calls RGB24: 0x00RRGGBB in native order, four bytes a
    // pixel, top row first.
    cairo_surface_t* picture =
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, Page.Width(), Page.Height());
    if (cairo_surface_status(picture) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(picture);
        return false;
    }
    cairo_surface_flush(picture);
    unsigned char* bits = cairo_image_surface_get_data(picture);
    const int stride = cairo_image_surface_get_stride(picture);
    const std::size_t rowBytes = std::size_t(Page.Width()) * 4;
    for (int y = 0; y < Page.Height(); ++y) {
        std::memcpy(bits + std::size_t(y) * std::size_t(stride), Page.Row(y), rowBytes);
    }
    cairo_surface_mark_dirty(picture);

    cairo_t* cr = cairo_create(pCairo->pSurface);
    // Page pixels to points: the picture fills the paper exactly.
    cairo_scale(cr, Printer.GetPaperWidthPoints() / Page.Width(),
                Printer.GetPaperHeightPoints() / Page.Height());
    cairo_set_source_surface(cr, picture, 0, 0);
    // Pixels stay sharp squares when the page is zoomed.
    cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_NEAREST);
    cairo_paint(cr);
    cairo_surface_destroy(picture);

    for (const TextRun& run : aText) {
        WriteText(cr, run);
    }
    cairo_show_page(cr);
    const bool ok = cairo_status(cr) == CAIRO_STATUS_SUCCESS &&
                    cairo_surface_status(pCairo->pSurface) == CAIRO_STATUS_SUCCESS;
    cairo_destroy(cr);
    return ok;
}

// The text over the picture: the glyphs of the face the screen uses, at the pen positions the
// drawing calls gave them. `cr` counts in page pixels.
void PrintDocument::WriteText(cairo_t* cr, const TextRun& run)
{
    cairo_font_face_t* face = pCairo->FaceFor(*run.pFont);
    if (!face || run.Clip.IsEmpty()) {
        return;
    }
    cairo_save(cr);
    cairo_rectangle(cr, run.Clip.left, run.Clip.top, run.Clip.Width(), run.Clip.Height());
    cairo_clip(cr);
    cairo_set_source_rgb(cr, GetRValue(run.Color) / kMaxChannel, GetGValue(run.Color) / kMaxChannel,
                         GetBValue(run.Color) / kMaxChannel);
    cairo_set_font_face(cr, face);
    cairo_matrix_t size;
    cairo_matrix_init_scale(&size, run.pFont->GetXPixelsPerEm(), run.pFont->GetPixelsPerEm());
    cairo_set_font_matrix(cr, &size);

    std::string utf8;
    std::vector<cairo_glyph_t> glyphs;
    std::vector<cairo_text_cluster_t> clusters;
    for (std::size_t i = 0; i < run.Text.size() && i < run.PenX.size(); ++i) {
        const BYTE c = BYTE(run.Text[i]);
        const std::string bytes = Utf8Of(c);
        utf8 += bytes;
        glyphs.push_back(
            cairo_glyph_t{run.pFont->GetGlyphIndex(c), double(run.PenX[i]), double(run.Baseline)});
        clusters.push_back(cairo_text_cluster_t{int(bytes.size()), 1});
    }
    cairo_show_text_glyphs(cr, utf8.c_str(), int(utf8.size()), glyphs.data(), int(glyphs.size()),
                           clusters.data(), int(clusters.size()), cairo_text_cluster_flags_t(0));
    cairo_restore(cr);
}
