#include "catalogues/ObjectListWithDelete.h"

ObjectListWithDelete::~ObjectListWithDelete()
{
    ObjectListWithDelete::Flush();
}

void ObjectListWithDelete::Flush()
{
    for (AstroObject* object : *this) {
        if (object != nullptr) {
            object->ReleaseReference();
        }
    }
    clear();
}
