#pragma once
// The objects behind bitmap and palette handles.
//
// A handle is the address of its object, and it is good from its creation until DeleteObject.
// The table of live handles holds one reference; device contexts that select an object hold
// another, so deleting a handle that is still selected frees nothing under the context's feet:
// the object goes when the last holder lets go. An unknown or deleted handle is refused.
#include <memory>

class GdiObject
{
public:
    virtual ~GdiObject() = default;

    // Fills `buffer` as GetObjectA does; returns the bytes written, 0 when `size` is too small.
    virtual int Describe(int size, void* buffer) const = 0;

    // Enters an object in the table and returns its handle.
    static void* AddHandle(std::shared_ptr<GdiObject> object);
    // The object of a live handle, null for any other value.
    static std::shared_ptr<GdiObject> FromHandle(const void* handle);
    template <typename T>
    static std::shared_ptr<T> FromHandleAs(const void* handle)
    {
        return std::dynamic_pointer_cast<T>(FromHandle(handle));
    }
    // Takes a handle out of the table; false when it was not in it.
    static bool RemoveHandle(const void* handle);
};
