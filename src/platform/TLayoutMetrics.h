#pragma once
// Where a child of a layout window goes, as four constraints: one on a horizontal edge (X),
// one on the width or a second horizontal edge (Width), and the same downwards (Y, Height).
// Each ties an edge of the child to an edge of the parent (lmParent) or of a sibling:
//
//   lmAsIs       the edge (or size) stays where the child has it now
//   lmAbsolute   at `Value` in the parent's client area (a size of `Value`)
//   lmSameAs     at the other edge, moved by `Value`
//   lmAbove, lmLeftOf   `Margin` before the other edge
//   lmBelow, lmRightOf  `Margin` after the other edge
//   lmPercentOf  at `Percent` per cent of the other edge's position (or size)
//
// The parent's edges are those of its client area: left and top 0, right and bottom its width
// and height. Numbers are pixels, or with lmLayoutUnits the dialog units of the parent's font.
class TWindow;

enum TEdge
{
    lmLeft,
    lmTop,
    lmRight,
    lmBottom,
    lmCenter,
    lmWidth,
    lmHeight,
};

enum TRelationship
{
    lmAsIs = 0,
    lmPercentOf = 1,
    lmAbove = 2,
    lmLeftOf = lmAbove,
    lmBelow = 3,
    lmRightOf = lmBelow,
    lmSameAs = 4,
    lmAbsolute = 5,
};

enum TMeasurementUnits
{
    lmPixels,
    lmLayoutUnits,
};

// The parent, as the other window of a constraint.
inline constexpr TWindow* lmParent = nullptr;

struct TLayoutConstraint
{
    TWindow* RelWin = lmParent;
    TEdge MyEdge = lmLeft;
    TRelationship Relationship = lmAsIs;
    TEdge OtherEdge = lmLeft;
    TMeasurementUnits Units = lmPixels;
    // Margin, value or percentage, as the relationship reads it.
    int Value = 0;
};

struct TEdgeConstraint : TLayoutConstraint
{
    void Set(TEdge myEdge, TRelationship relationship, TWindow* otherWindow, TEdge otherEdge,
             int value = 0);
    void LeftOf(TWindow* sibling, int margin = 0)
    {
        Set(lmRight, lmLeftOf, sibling, lmLeft, margin);
    }
    void RightOf(TWindow* sibling, int margin = 0)
    {
        Set(lmLeft, lmRightOf, sibling, lmRight, margin);
    }
    void Above(TWindow* sibling, int margin = 0) { Set(lmBottom, lmAbove, sibling, lmTop, margin); }
    void Below(TWindow* sibling, int margin = 0) { Set(lmTop, lmBelow, sibling, lmBottom, margin); }
    void SameAs(TWindow* otherWindow, TEdge edge, int value = 0)
    {
        Set(edge, lmSameAs, otherWindow, edge, value);
    }
    void PercentOf(TWindow* otherWindow, TEdge edge, int percent)
    {
        Set(edge, lmPercentOf, otherWindow, edge, percent);
    }
    void Absolute(TEdge edge, int value) { Set(edge, lmAbsolute, lmParent, edge, value); }
    void AsIs(TEdge edge) { Set(edge, lmAsIs, lmParent, edge, 0); }
};

// The second constraint of an axis: a size, or another edge.
struct TSizeOrEdgeConstraint : TEdgeConstraint
{
    explicit TSizeOrEdgeConstraint(TEdge size)
    {
        MyEdge = size;
        OtherEdge = size;
    }
    void Absolute(int value) { Set(SizeEdge(), lmAbsolute, lmParent, SizeEdge(), value); }
    void SameAs(TWindow* otherWindow, int value = 0)
    {
        Set(SizeEdge(), lmSameAs, otherWindow, SizeEdge(), value);
    }
    void PercentOf(TWindow* otherWindow, int percent)
    {
        Set(SizeEdge(), lmPercentOf, otherWindow, SizeEdge(), percent);
    }
    void AsIs() { Set(SizeEdge(), lmAsIs, lmParent, SizeEdge(), 0); }
    using TEdgeConstraint::Absolute;
    using TEdgeConstraint::AsIs;
    using TEdgeConstraint::PercentOf;
    using TEdgeConstraint::SameAs;

private:
    TEdge SizeEdge() const { return bHorizontal ? lmWidth : lmHeight; }

protected:
    bool bHorizontal = true;
};

struct TEdgeOrWidthConstraint : TSizeOrEdgeConstraint
{
    TEdgeOrWidthConstraint() : TSizeOrEdgeConstraint(lmWidth) { bHorizontal = true; }
};

struct TEdgeOrHeightConstraint : TSizeOrEdgeConstraint
{
    TEdgeOrHeightConstraint() : TSizeOrEdgeConstraint(lmHeight) { bHorizontal = false; }
};

class TLayoutMetrics
{
public:
    // Every edge as it is.
    TLayoutMetrics();

    void SetMeasurementUnits(TMeasurementUnits units);

    TEdgeConstraint X;
    TEdgeConstraint Y;
    TEdgeOrWidthConstraint Width;
    TEdgeOrHeightConstraint Height;
};
