#include "platform/TSeparatorGadget.h"

TSeparatorGadget::TSeparatorGadget(int size) : TGadget(0, None), nSize(size)
{}

void TSeparatorGadget::GetDesiredSize(TSize& size)
{
    size = TSize(nSize, nSize);
}
