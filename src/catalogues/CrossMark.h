#pragma once
// The yellow letter "X" that marks an object with no picture of its own (a comet, a Messier
// object), drawn with its middle on the object's point; on paper in a darker yellow.
#include "platform/TPoint.h"

class DisplayParameters;
class TDC;

class CrossMark
{
public:
    static void Draw(TDC& dc, const TPoint& centre, const DisplayParameters& parameters);
};
