#pragma once
// An interval on the circle of degrees, held as a centre and a half width rather than two
// ends, so that a range across 0 degrees needs no special case. Two extreme states stand
// apart from the numbers: full (every angle) and empty (none); they are never both set.
#include "coords/DegreeAngle.h"

class HostFile;

class DegreeRange
{
public:
    // Centre and half width 0; full when `all`, else empty.
    explicit DegreeRange(bool all = false);
    // From two ends, the middle taken plainly: centre (a + b) / 2, half width |b - centre|.
    // It does not look for the seam, so (350, 10) is the long way round through 180.
    // The third argument has no effect.
    DegreeRange(const DegreeAngle& a, const DegreeAngle& b, int unused = 0);
    DegreeRange(double a, double b, int unused = 0);
    DegreeRange(const DegreeRange&) = default;
    DegreeRange& operator=(const DegreeRange&) = default;
    virtual ~DegreeRange() = default;

    // The bounds of the circle.
    virtual double GetMinimum() const { return 0.0; }
    virtual double GetMaximum() const { return 360.0; }

    // Stores both as they are and clears the flags.
    void Set(const DegreeAngle& center, const DegreeAngle& halfWidth);
    // Clears both flags.
    void CommonInit();
    void Copy(const DegreeRange& other);

    const DegreeAngle& GetCenter() const { return Center; }
    const DegreeAngle& GetHalfWidth() const { return HalfWidth; }
    bool IsFull() const { return bFull; }
    bool IsEmpty() const { return bEmpty; }

    // The shorter way round the circle between two angles, 0 to 180.
    static DegreeAngle GetDifference(const DegreeAngle& a, const DegreeAngle& b);

    // True when the angle lies within the half width of the centre, ends included.
    bool Contains(const DegreeAngle& angle) const;
    // True when either range is full, false when either is empty, otherwise when the centres
    // lie no further apart than the two half widths together.
    bool Intersects(const DegreeRange& other) const;
    // Widens the range just enough to hold the angle (but for a few units in the last place,
    // so that every angle enclosed before stays contained): the end away from the angle stays
    // and the angle becomes the other end, reached the shorter way round. Where the angle lies
    // across the seam below the centre, it is worked in whole turns above, and the caller's
    // angle keeps that value (Enclose(10) on a range centred at 350 leaves the caller holding
    // 370). Infinity and NaN are passed over.
    void Enclose(DegreeAngle& angle);

    // Two doubles: (0, 360) for a full range, (0, 0) for an empty one, else centre and half
    // width. False when a write falls short.
    bool Dump(HostFile& file) const;
    // Reads the two doubles; a half width of 0 makes the range empty and one of 360 or more
    // makes it full. False, and no change, when the file ends first.
    bool Load(HostFile& file);

private:
    DegreeAngle Center;
    DegreeAngle HalfWidth;
    bool bFull = false;
    bool bEmpty = true;
};
