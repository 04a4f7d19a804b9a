#pragma once
// A filled shape as one run of pixels per row, built to the rules of GDI: a shape fits its
// box without the box's right column and bottom row. An ellipse holds the pixels whose centres
// lie inside or on the ellipse through the box's edges; a rounded rectangle is a rectangle whose
// corners are quarters of an ellipse of the corner size.
//
// A pen of width w draws the pixels of the shape that lie within w pixels of its edge; the
// brush fills what is left inside.
#include <algorithm>
#include <vector>

#include "platform/TRect.h"

class ShapeSpans
{
public:
    // Pixels Left to Right - 1 of a row; empty when Left >= Right.
    struct Run
    {
        int Left = 0;
        int Right = 0;
        bool IsEmpty() const { return Left >= Right; }
    };

    static ShapeSpans Rectangle(const TRect& box);
    static ShapeSpans Ellipse(const TRect& box);
    // Corner sizes beyond the box are cut to the box, so a corner as large as the box gives
    // the ellipse of the box.
    static ShapeSpans RoundRect(const TRect& box, int cornerWidth, int cornerHeight);

    int Top() const { return Box.top; }
    int Bottom() const { return Box.bottom; }
    const TRect& GetBox() const { return Box; }
    Run At(int y) const;

    // Calls outline(y, run) for each run a pen of `penWidth` draws, and inside(y, run) for
    // each run of the brush. A width below 1 counts as 1.
    template <typename Outline, typename Inside>
    void ForEachRun(int penWidth, Outline outline, Inside inside) const;

private:
    enum class Kind
    {
        Rectangle,
        Ellipse,
        RoundRect,
    };
    ShapeSpans(Kind kind, const TRect& box, int cornerWidth, int cornerHeight);
    ShapeSpans Inset(int d) const;
    static Run EllipseRun(const TRect& box, int y);

    Kind ShapeKind;
    TRect Box;
    int nCornerWidth;
    int nCornerHeight;
    std::vector<Run> aRows;
};

template <typename Outline, typename Inside>
void ShapeSpans::ForEachRun(int penWidth, Outline outline, Inside inside) const
{
    int d = std::max(penWidth, 1) - 1;
    ShapeSpans inner = d > 0 ? Inset(d) : *this;
    auto emit = [](auto& f, int y, int l, int r) {
        if (l < r) {
            f(y, Run{l, r});
        }
    };
    for (int y = Box.top; y < Box.bottom; ++y) {
        Run all = At(y);
        if (all.IsEmpty()) {
            continue;
        }
        Run in = inner.At(y);
        if (in.IsEmpty()) {
            emit(outline, y, all.Left, all.Right);
            continue;
        }
        // The ring between the shape and the inner shape.
        emit(outline, y, all.Left, in.Left);
        emit(outline, y, in.Right, all.Right);
        // The edge of the inner shape: pixels with a neighbour above, below or beside
        // outside of it.
        Run above = inner.At(y - 1), below = inner.At(y + 1);
        Run core;
        if (!above.IsEmpty() && !below.IsEmpty()) {
            core.Left = std::max({in.Left + 1, above.Left, below.Left});
            core.Right = std::min({in.Right - 1, above.Right, below.Right});
        }
        if (core.IsEmpty()) {
            emit(outline, y, in.Left, in.Right);
            continue;
        }
        emit(outline, y, in.Left, core.Left);
        emit(inside, y, core.Left, core.Right);
        emit(outline, y, core.Right, in.Right);
    }
}
