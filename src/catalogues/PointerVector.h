#pragma once
// A vector of pointers that owns its elements when told so at construction: then the
// destructor and Flush delete every element. The catalogues keep their stars' copies, comet
// views, constellations and Messier objects in such vectors.
#include <vector>

template <class T>
class PointerVector : public std::vector<T*>
{
public:
    explicit PointerVector(bool ownsElements = true) : bOwnsElements(ownsElements) {}
    virtual ~PointerVector() { DeleteOwned(); }

    PointerVector(const PointerVector&) = delete;
    PointerVector& operator=(const PointerVector&) = delete;

    // Empties the vector, deleting the elements when it owns them.
    virtual void Flush()
    {
        DeleteOwned();
        this->clear();
    }

    bool OwnsElements() const { return bOwnsElements; }

private:
    void DeleteOwned()
    {
        if (bOwnsElements) {
            for (T* item : *this) {
                delete item;
            }
        }
    }

    bool bOwnsElements;
};
