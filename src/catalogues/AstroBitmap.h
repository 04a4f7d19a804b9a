#pragma once
// A picture on the sky map whose size is an angle: it grows and shrinks with the field, as the
// Moon's face does. It is a part of sky objects, not one itself.
//
// The source picture is a TDib, either loaded here from a file (and owned) or handed in by the
// caller (and not owned). For the draw the picture is stretched once into a device bitmap of
// the scaled size, compatible with the surface and in the map's palette; a draw is then one
// BitBlt. The device bitmap is made again only when the scaled size changes or something asks
// for it (a new picture, a new orientation).
//
// A picture from a file may be turned by an orientation angle (degrees, positive only), which
// works on 8-bit pictures: the turn keeps the size, so the corners are cut off, and pixels that
// nothing maps to are black. The file's picture is kept as read, and each new angle turns that
// original, so turns never pile up. A picture handed in as a TDib is never turned; there the
// angle only forces the device bitmap to be made again.
#include <memory>
#include <string>

#include "coords/DegreeAngle.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TSize.h"

class DisplayParameters;
class TBitmap;
class TDib;
class Transformation;

class AstroBitmap
{
public:
    // The largest side of a device bitmap, in pixels. A picture of a wide angle in a very narrow
    // field would otherwise ask for gigabytes; beyond this it is drawn smaller than its angle.
    static constexpr int kMaxScaledSide = 4096;

    AstroBitmap();
    ~AstroBitmap();
    AstroBitmap(const AstroBitmap&) = delete;
    AstroBitmap& operator=(const AstroBitmap&) = delete;

    // A picture file. The same name as before changes nothing, even when the file has changed
    // on disc; another name drops the device bitmap and the source, and the next draw loads it.
    void SetBitmap(const std::string& fileName);
    // A picture that the caller keeps alive and deletes; null for none. Always drops the device
    // bitmap and any source loaded here.
    void SetBitmap(TDib* dib);
    // Stores a new angle and asks for a new device bitmap; the same angle changes nothing.
    void SetOrientationAngle(const DegreeAngle& angle);

    // Makes the device bitmap for the surface, palette and transformation of `parameters`,
    // loading (and turning) the source first when it comes from a file. Without a source, a
    // surface or a transformation there is no device bitmap.
    void LoadBitmapA(DisplayParameters& parameters);
    // Drops the device bitmap.
    void UnloadBitmap();
    // LoadBitmapA unless a device bitmap of the present scaled size exists and nothing asked
    // for a new one.
    void UpdateBitmap(DisplayParameters& parameters);
    // Drops the source picture, deleting it when it was loaded here.
    void GetRidOfDib();

    // The size of the device bitmap for a transformation: the width the angular size covers on
    // the x axis, the height in the source's proportions, each at least 1 pixel.
    TSize GetScaledSize(const Transformation& transformation) const;
    // UpdateBitmap, then the rectangle the device bitmap covers; empty without one.
    TRect GetDrawRect(DisplayParameters& parameters);
    // The device bitmap's rectangle centred on the display point (half sizes by integer
    // division); empty without one.
    TRect GetDrawRectInternal() const;
    // UpdateBitmap, then copies the device bitmap onto the surface of `parameters`.
    void Draw(DisplayParameters& parameters);

    void SetDisplayPoint(const TPoint& point) { DisplayPoint = point; }
    const TPoint& GetDisplayPoint() const { return DisplayPoint; }
    void SetAngularSize(const DegreeAngle& size) { AngularSize = size; }
    const DegreeAngle& GetAngularSize() const { return AngularSize; }
    const DegreeAngle& GetOrientationAngle() const { return OrientationAngle; }

    // What there is at present, for drawing code and tests.
    const TBitmap* GetBitmap() const { return pBitmap.get(); }
    const TDib* GetDib() const { return pDib; }
    TSize GetBitmapSize() const { return BitmapSize; }
    TSize GetDibSize() const { return DibSize; }
    const std::string& GetFileName() const { return FileName; }
    bool NeedsRebuild() const { return bRebuild; }

    // An 8-bit picture turned by `angle` about its centre into a new picture of the same size,
    // colour count and colour table, filled first with the table's black (index 0 when the
    // table has none). Null when the source is not an 8-bit picture.
    static std::unique_ptr<TDib> Rotate(const TDib& source, const DegreeAngle& angle);

private:
    // Reads the file into pFileDib; false when it cannot be read.
    bool LoadDib();
    // Points pDib at the file's picture turned by the present angle, turning it when needed.
    void TurnFilePicture();

    TSize BitmapSize;
    TPoint DisplayPoint;
    std::unique_ptr<TBitmap> pBitmap;
    std::string FileName;
    DegreeAngle AngularSize{1.0};
    TSize DibSize;
    bool bRebuild = false;
    DegreeAngle OrientationAngle{0.0};
    TDib* pDib = nullptr;
    // A picture from the file as read, and turned by DibAngle; pDib is one of them when the
    // picture came from the file.
    std::unique_ptr<TDib> pFileDib;
    std::unique_ptr<TDib> pTurnedDib;
    DegreeAngle DibAngle{0.0};
};
