#include "catalogues/AstroList.h"

#include <algorithm>
#include <cstdlib>

namespace {

// Copies grow in large steps: they are made of whole visible lists.
constexpr std::size_t kCopyGrowthStep = 1000;

} // namespace

AstroList::AstroList(const AstroList& other)
    : ReferenceArray<AstroObject>(other.GetCount(), kCopyGrowthStep)
{
    for (AstroObject* object : other) {
        Add(object);
    }
}

void AstroList::RemoveTimeDependentObjects()
{
    std::size_t i = 0;
    while (i < GetCount()) {
        AstroObject* object = (*this)[i];
        if (object != nullptr && object->IsTimeDependent()) {
            Detach(i);
        } else {
            ++i;
        }
    }
    pIndex.reset();
}

void AstroList::BuildIndex()
{
    auto index = std::make_unique<std::vector<ObjectInfo>>();
    index->reserve(GetCount());
    for (AstroObject* object : *this) {
        if (object != nullptr) {
            index->push_back({object->GetDisplayPoint().x, object});
        }
    }
    std::stable_sort(index->begin(), index->end(),
                     [](const ObjectInfo& a, const ObjectInfo& b) { return a.x < b.x; });
    pIndex = std::move(index);
}

AstroObject* AstroList::FindNearestObject(const TPoint& point, int radius)
{
    if (!pIndex) {
        BuildIndex();
    }
    const std::vector<ObjectInfo>& index = *pIndex;
    if (index.empty()) {
        return nullptr;
    }

    // Bisect for the last entry whose x is at most the left edge of the search square. Wide
    // integers keep extreme points and radii from overflowing; within the screen the results
    // are those of 32-bit arithmetic.
    const long long target = (long long)point.x - radius;
    std::size_t lo = 0;
    std::size_t hi = index.size() - 1;
    while (hi - lo > 1) {
        std::size_t mid = (hi + lo) / 2;
        if (target < index[mid].x) {
            hi = mid;
        } else {
            lo = mid;
        }
    }

    // The circle is open: a point at exactly the radius is outside, and so is one at exactly
    // the right edge of the square.
    AstroObject* best = nullptr;
    long long bestDistance = (long long)radius * radius;
    const long long limit = (long long)point.x + radius;
    for (std::size_t i = lo; i < index.size() && index[i].x < limit; ++i) {
        const TPoint& p = index[i].pObject->GetDisplayPoint();
        long long dx = std::llabs((long long)p.x - point.x);
        long long dy = std::llabs((long long)p.y - point.y);
        if (dy > radius || dx > radius) {
            continue;
        }
        long long d = dx * dx + dy * dy;
        if (d < bestDistance) {
            best = index[i].pObject;
            bestDistance = d;
        }
    }
    return best;
}
