#include "platform/TLayoutMetrics.h"

void TEdgeConstraint::Set(TEdge myEdge, TRelationship relationship, TWindow* otherWindow,
                          TEdge otherEdge, int value)
{
    MyEdge = myEdge;
    Relationship = relationship;
    RelWin = otherWindow;
    OtherEdge = otherEdge;
    Value = value;
}

TLayoutMetrics::TLayoutMetrics()
{
    X.Set(lmLeft, lmAsIs, lmParent, lmLeft);
    Y.Set(lmTop, lmAsIs, lmParent, lmTop);
}

void TLayoutMetrics::SetMeasurementUnits(TMeasurementUnits units)
{
    X.Units = units;
    Y.Units = units;
    Width.Units = units;
    Height.Units = units;
}
