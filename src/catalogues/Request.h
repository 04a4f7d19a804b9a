#pragma once
// What one draw asks of the catalogues: the view's transformation, the catalogues wanted, the
// time and the faintest star wanted, and whether this draw is a frame of a scroll.
//
// The collector compares each request with the last one it answered: an equal request costs
// nothing, and one that differs by time alone keeps everything that does not move.
#include <memory>

#include "catalogues/CatalogueSet.h"
#include "projection/AstroScrollInfo.h"
#include "projection/ScrollTransformation.h"
#include "projection/Transformation.h"
#include "time/AstroTime.h"

class StarCatalogue;

class Request
{
public:
    // The transformation is copied. `limitingMagnitude` is the faintest magnitude shown.
    Request(const Transformation& view, CatalogueSet catalogues, const AstroTime& time,
            double limitingMagnitude);
    // Everything but the scroll transformation, which stays with its owner: the copy has none.
    Request(const Request& other);
    Request& operator=(const Request& other);
    ~Request();

    // Copies the info and makes this frame's ScrollTransformation from it and the view.
    void SetScrollInfo(const AstroScrollInfo& info);

    // Same view, catalogues, limiting magnitude and time.
    bool operator==(const Request& other) const;
    // Same view, catalogues and limiting magnitude, another time.
    bool DiffersByTimeOnly(const Request& other) const;
    // Perspectives and projectors equal, the catalogue words equal and the limiting magnitudes
    // equal as doubles.
    bool CompareAllButTime(const Request& other) const;

    // The star catalogue chosen for this request; not owned.
    StarCatalogue* GetStarCatalogue() const { return pStarCatalogue; }
    void SetStarCatalogue(StarCatalogue* catalogue) { pStarCatalogue = catalogue; }
    const Transformation& GetView() const { return View; }
    // Null until SetScrollInfo.
    const ScrollTransformation* GetScrollTransformation() const
    {
        return pScrollTransformation.get();
    }
    const CatalogueSet& GetCatalogues() const { return Catalogues; }
    const AstroTime& GetTime() const { return Time; }
    double GetLimitingMagnitude() const { return LimitingMagnitude; }
    bool IsScrolling() const { return bScrolling; }
    void SetScrolling(bool scrolling) { bScrolling = scrolling; }
    // Valid while scrolling.
    const AstroScrollInfo& GetScrollInfo() const { return ScrollInfo; }
    bool IsForceReload() const { return bForceReload; }
    void SetForceReload(bool force) { bForceReload = force; }

    // The scroll that moves stars by their stored vectors: the scroll transformation while
    // this request is a scroll frame that has one, otherwise null.
    const ScrollTransformation* GetActiveScroll() const
    {
        return bScrolling ? pScrollTransformation.get() : nullptr;
    }
    // Whether the vectors that stars stored in the last scroll frame carry over to this one
    // (ScrollTransformation::Continues); the collector decides. When not, every star shown
    // makes its vector again.
    bool KeepsScrollCache() const { return bKeepScrollCache; }
    void SetKeepScrollCache(bool keep) { bKeepScrollCache = keep; }

private:
    StarCatalogue* pStarCatalogue = nullptr;
    Transformation View;
    std::unique_ptr<ScrollTransformation> pScrollTransformation;
    CatalogueSet Catalogues;
    AstroTime Time;
    double LimitingMagnitude;
    bool bScrolling = false;
    AstroScrollInfo ScrollInfo;
    bool bForceReload = false;
    bool bKeepScrollCache = false;
};
