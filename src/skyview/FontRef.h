#pragma once
// A font shared by many labels, counted by hand.
//
// The count starts at 0, which means one holder: whoever made the FontRef. Each further
// holder adds a reference; each holder, the first included, gives its reference back with
// Release, and the Release that finds the count at 0 deletes the FontRef. A FontRef therefore
// lives on the heap and is never deleted directly. It may own its TFont, which then goes
// with it, or only point at a font that someone else keeps alive for as long as it is used.
#include <cstdint>
#include <memory>

class TDC;
class TFont;

class FontRef
{
public:
    // Owns `font`.
    explicit FontRef(std::unique_ptr<TFont> font);
    // Points at `font` and leaves it to its owner.
    explicit FontRef(TFont& font);

    FontRef(const FontRef&) = delete;
    FontRef& operator=(const FontRef&) = delete;

    // One more holder.
    void AddReference() { ++nReferenceCount; }
    // One holder less; the last one deletes this FontRef.
    void Release();

    TFont& GetFont() const { return *pFont; }
    bool OwnsFont() const { return bOwnsFont; }
    // The number of holders beyond the first.
    std::int32_t GetReferenceCount() const { return nReferenceCount; }

    // The label font that one kind of object shares: `shared` while the resolution of `dc`
    // is still `resolution`, otherwise a new font of `face`, `heightInches` high at that
    // resolution, which replaces it. The old font is given back; labels that hold it keep it
    // alive until they go.
    static FontRef* ForResolution(FontRef*& shared, int& resolution, const TDC& dc,
                                  const char* face, double heightInches);

private:
    // Only Release deletes.
    ~FontRef();

    std::int32_t nReferenceCount = 0;
    bool bOwnsFont;
    TFont* pFont;
};
