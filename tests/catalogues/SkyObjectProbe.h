#pragma once
// A minimal sky object for the list and container tests: it stands where it is put, says
// whether it moves with time, and tells a shared flag when it is deleted.
#include "catalogues/AstroObject.h"

class SkyObjectProbe : public AstroObject
{
public:
    explicit SkyObjectProbe(TPoint point = TPoint(), bool timeDependent = false,
                            bool* deleted = nullptr, std::uint32_t uid = 0)
        : AstroObject(timeDependent ? ObjectType::Planet : ObjectType::OtherObject), Point(point),
          bTimeDependent(timeDependent), pDeleted(deleted), nUid(uid)
    {}
    ~SkyObjectProbe() override
    {
        if (pDeleted != nullptr) {
            *pDeleted = true;
        }
    }

    PolarCoord GetPosition() const override { return PolarCoord(); }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override { Point = point; }
    bool IsTimeDependent() const override { return bTimeDependent; }
    std::uint32_t GetUid() const override { return nUid; }
    void Draw(TDC&, DisplayParameters&) override {}

private:
    TPoint Point;
    bool bTimeDependent;
    bool* pDeleted;
    std::uint32_t nUid;
};
