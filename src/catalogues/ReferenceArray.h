#pragma once
// An array of pointers to objects that live elsewhere, as the sky map's lists hold them.
//
// The array is made with an initial size and a growth step: when it is full it makes room for
// that many more pointers at once. By default it owns nothing: adding, detaching and flushing
// leave the objects alone. An array told to own its elements (the grid's polylines, the
// planet views) deletes them when it is flushed or destroyed.
#include <cstddef>
#include <vector>

template <class T>
class ReferenceArray
{
public:
    using const_iterator = typename std::vector<T*>::const_iterator;

    explicit ReferenceArray(std::size_t initialSize = 10, std::size_t growthStep = 10)
        : nGrowthStep(growthStep == 0 ? 1 : growthStep)
    {
        aItems.reserve(initialSize);
    }
    virtual ~ReferenceArray() { DeleteOwned(); }

    ReferenceArray(const ReferenceArray&) = delete;
    ReferenceArray& operator=(const ReferenceArray&) = delete;

    // Appends a pointer; null pointers are kept like any other.
    void Add(T* item)
    {
        if (aItems.size() == aItems.capacity()) {
            aItems.reserve(aItems.capacity() + nGrowthStep);
        }
        aItems.push_back(item);
        Changed();
    }
    // Takes the pointer at `index` out of the array without deleting its object; false when
    // there is no such index.
    bool Detach(std::size_t index)
    {
        if (index >= aItems.size()) {
            return false;
        }
        aItems.erase(aItems.begin() + std::ptrdiff_t(index));
        Changed();
        return true;
    }
    // Empties the array, deleting the objects when it owns them.
    virtual void Flush()
    {
        DeleteOwned();
        aItems.clear();
        Changed();
    }

    T* operator[](std::size_t index) const { return aItems[index]; }
    std::size_t GetCount() const { return aItems.size(); }
    bool IsEmpty() const { return aItems.empty(); }
    std::size_t GetCapacity() const { return aItems.capacity(); }
    std::size_t GetGrowthStep() const { return nGrowthStep; }

    const_iterator begin() const { return aItems.begin(); }
    const_iterator end() const { return aItems.end(); }

    bool OwnsElements() const { return bOwnsElements; }
    void OwnsElements(bool owns) { bOwnsElements = owns; }

protected:
    // Called after every change of the contents; lists with derived data drop it here.
    virtual void Changed() {}

private:
    void DeleteOwned()
    {
        if (bOwnsElements) {
            for (T* item : aItems) {
                delete item;
            }
        }
    }

    std::vector<T*> aItems;
    std::size_t nGrowthStep;
    bool bOwnsElements = false;
};
