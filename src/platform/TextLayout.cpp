#include "platform/TextLayout.h"

#include <algorithm>
#include <cstring>

#include "platform/TDC.h"

namespace {

const char kEllipsis[] = "...";

int WidthOf(const TDC& dc, const std::string& text)
{
    return text.empty() ? 0 : dc.GetTextExtent(text).cx;
}

// Breaks one paragraph into lines no wider than `width`, between words where possible; a word
// wider than the line is broken between characters.
void Wrap(const TDC& dc, const std::string& paragraph, int width, std::vector<std::string>& lines)
{
    std::string line;
    // A word alone that is too wide is cut at the last character that fits.
    auto breakLong = [&] {
        while (WidthOf(dc, line) > width && line.size() > 1) {
            std::size_t fit = 1;
            while (fit < line.size() && WidthOf(dc, line.substr(0, fit + 1)) <= width) {
                ++fit;
            }
            lines.push_back(line.substr(0, fit));
            line = line.substr(fit);
        }
    };
    std::size_t i = 0;
    while (i < paragraph.size()) {
        std::size_t end = paragraph.find(' ', i);
        if (end == std::string::npos) {
            end = paragraph.size();
        }
        std::string word = paragraph.substr(i, end - i);
        std::string candidate = line.empty() ? word : line + " " + word;
        if (line.empty() || WidthOf(dc, candidate) <= width) {
            line = candidate;
        } else {
            lines.push_back(line);
            line = word;
        }
        breakLong();
        i = end + 1;
    }
    lines.push_back(line);
}

} // namespace

std::string TextLayout::StripPrefix(const std::string& text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) {
            ++i;
        } else if (text[i] == '&') {
            continue;
        }
        plain += text[i];
    }
    return plain;
}

TextLayout::TextLayout(const TDC& dc, const std::string& text, int width, UINT format)
    : nFormat(format)
{
    std::string plain = (format & DT_NOPREFIX) ? text : StripPrefix(text);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    nLineHeight = metrics.tmHeight;

    std::vector<std::string> paragraphs;
    if (format & DT_SINGLELINE) {
        std::replace(plain.begin(), plain.end(), '\n', ' ');
        std::erase(plain, '\r');
        paragraphs.push_back(plain);
    } else {
        std::size_t start = 0;
        while (true) {
            std::size_t end = plain.find('\n', start);
            std::string part = plain.substr(start, end == std::string::npos ? end : end - start);
            std::erase(part, '\r');
            paragraphs.push_back(part);
            if (end == std::string::npos) {
                break;
            }
            start = end + 1;
        }
    }
    for (const std::string& p : paragraphs) {
        if ((format & DT_WORDBREAK) && !(format & DT_SINGLELINE) && width > 0) {
            Wrap(dc, p, width, aLines);
        } else {
            aLines.push_back(p);
        }
    }
    if (format & DT_END_ELLIPSIS) {
        for (std::string& line : aLines) {
            if (WidthOf(dc, line) <= width) {
                continue;
            }
            while (!line.empty() && WidthOf(dc, line + kEllipsis) > width) {
                line.pop_back();
            }
            line += kEllipsis;
        }
    }
    for (const std::string& line : aLines) {
        nWidth = std::max(nWidth, WidthOf(dc, line));
    }
}

int TextLayout::Draw(TDC& dc, const TRect& rect) const
{
    int height = GetHeight();
    int y = rect.top;
    if (nFormat & DT_VCENTER) {
        y = rect.top + (rect.Height() - height) / 2;
    } else if (nFormat & DT_BOTTOM) {
        y = rect.bottom - height;
    }
    bool clip = !(nFormat & DT_NOCLIP);
    for (const std::string& line : aLines) {
        int width = WidthOf(dc, line);
        int x = rect.left;
        if (nFormat & DT_CENTER) {
            x = rect.left + (rect.Width() - width) / 2;
        } else if (nFormat & DT_RIGHT) {
            x = rect.right - width;
        }
        if (clip) {
            dc.ExtTextOut(x, y, ETO_CLIPPED, &rect, line.c_str(), int(line.size()));
        } else {
            dc.TextOut(x, y, line);
        }
        y += nLineHeight;
    }
    return height;
}

int DrawTextA(HDC dc, const char* text, int count, RECT* rect, UINT format)
{
    if (!dc || !text || !rect) {
        return 0;
    }
    std::string s(text, count < 0 ? std::strlen(text) : std::size_t(count));
    TRect r(*rect);
    TextLayout layout(*dc, s, r.Width(), format);
    if (format & DT_CALCRECT) {
        rect->right = rect->left + layout.GetWidth();
        rect->bottom = rect->top + layout.GetHeight();
        return layout.GetHeight();
    }
    return layout.Draw(*dc, r);
}
