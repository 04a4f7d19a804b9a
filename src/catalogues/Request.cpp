#include "catalogues/Request.h"

Request::Request(const Transformation& view, CatalogueSet catalogues, const AstroTime& time,
                 double limitingMagnitude)
    : View(view), Catalogues(catalogues), Time(time), LimitingMagnitude(limitingMagnitude)
{}

Request::Request(const Request& other)
    : pStarCatalogue(other.pStarCatalogue), View(other.View), Catalogues(other.Catalogues),
      Time(other.Time), LimitingMagnitude(other.LimitingMagnitude), bScrolling(other.bScrolling),
      ScrollInfo(other.ScrollInfo), bForceReload(other.bForceReload),
      bKeepScrollCache(other.bKeepScrollCache)
{}

Request& Request::operator=(const Request& other)
{
    if (this != &other) {
        pStarCatalogue = other.pStarCatalogue;
        View = other.View;
        pScrollTransformation.reset();
        Catalogues = other.Catalogues;
        Time = other.Time;
        LimitingMagnitude = other.LimitingMagnitude;
        bScrolling = other.bScrolling;
        ScrollInfo = other.ScrollInfo;
        bForceReload = other.bForceReload;
        bKeepScrollCache = other.bKeepScrollCache;
    }
    return *this;
}

Request::~Request() = default;

void Request::SetScrollInfo(const AstroScrollInfo& info)
{
    ScrollInfo = info;
    pScrollTransformation = std::make_unique<ScrollTransformation>(ScrollInfo, View);
}

bool Request::operator==(const Request& other) const
{
    return Time == other.Time && CompareAllButTime(other);
}

bool Request::DiffersByTimeOnly(const Request& other) const
{
    return !(Time == other.Time) && CompareAllButTime(other);
}

bool Request::CompareAllButTime(const Request& other) const
{
    return View.GetModifier() == other.View.GetModifier() &&
           View.GetProjector() == other.View.GetProjector() && Catalogues == other.Catalogues &&
           LimitingMagnitude == other.LimitingMagnitude;
}
