#pragma once
// A list of named objects that holds one reference on each: emptying it or destroying it
// releases every element. The star catalogue hands out its named stars as private copies in
// such a list.
#include "catalogues/AstroObject.h"
#include "catalogues/PointerVector.h"

class ObjectListWithDelete : public PointerVector<AstroObject>
{
public:
    ObjectListWithDelete() : PointerVector<AstroObject>(false) {}
    ~ObjectListWithDelete() override;

    // Releases every element, then empties the list.
    void Flush() override;
};
