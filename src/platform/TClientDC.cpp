#include "platform/TClientDC.h"

#include "platform/Surface.h"

TClientDC::TClientDC(DrawingTarget& target)
    : TDC(target.GetDrawingSurface(), target.GetDrawingCaps()), Target(target)
{}

TClientDC::~TClientDC()
{
    Target.DrawingDone();
}
