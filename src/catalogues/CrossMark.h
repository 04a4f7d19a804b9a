#pragma once
// The yellow letter "X" that marks an object with no picture of its own (a comet, a Messier
// object), drawn with its middle on the object's point.
#include "platform/TPoint.h"

class TDC;

class CrossMark
{
public:
    static void Draw(TDC& dc, const TPoint& centre);
};
