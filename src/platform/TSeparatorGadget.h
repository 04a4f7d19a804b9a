#pragma once
// Empty room between gadgets, of a size in pixels.
#include "platform/TGadget.h"

class TSeparatorGadget : public TGadget
{
public:
    explicit TSeparatorGadget(int size = 6);
    void GetDesiredSize(TSize& size) override;

private:
    int nSize;
};
