#pragma once
// The objects that one view shows, in drawing order. The list does not own them: the
// catalogues do, and clearing the list neither deletes nor releases anything.
//
// To find the object under the mouse the list keeps an index of the objects sorted by the x
// of their display points. It is built by the first search after a change and dropped by the
// next change.
#include <cstdint>
#include <memory>
#include <vector>

#include "catalogues/AstroObject.h"
#include "catalogues/ReferenceArray.h"

class AstroList : public ReferenceArray<AstroObject>
{
public:
    // One entry of the index: the x pixel of an object's display point, and the object.
    struct ObjectInfo
    {
        std::int32_t x;
        AstroObject* pObject;
    };

    AstroList(std::size_t initialSize, std::size_t growthStep)
        : ReferenceArray<AstroObject>(initialSize, growthStep)
    {}
    // The same objects in the same order, in a list sized for them that grows by 1000. The
    // index is not copied.
    AstroList(const AstroList& other);

    // Removes every object whose position changes with time (planets, comets), keeping the
    // order of the rest.
    void RemoveTimeDependentObjects();

    // The object whose display point lies nearest `point`, strictly within `radius` pixels,
    // or null. Of two at the same distance the one with the smaller x, or the earlier in the
    // list, wins.
    AstroObject* FindNearestObject(const TPoint& point, int radius);

    bool HasIndex() const { return pIndex != nullptr; }

protected:
    void Changed() override { pIndex.reset(); }

private:
    void BuildIndex();

    std::unique_ptr<std::vector<ObjectInfo>> pIndex;
};
