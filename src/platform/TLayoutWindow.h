#pragma once
// A window that places its children by layout metrics each time it changes size (or Layout is
// called). Children without metrics stay where they are; a constraint may refer to them.
// Constraints on siblings are solved in the order they can be: a child is placed once the
// windows it refers to are placed. Constraints that refer to each other in a circle cannot be
// solved; those children keep their places and a message goes to dbstream.
#include <map>

#include "platform/TLayoutMetrics.h"
#include "platform/TWindow.h"

class TLayoutWindow : public TWindow
{
public:
    explicit TLayoutWindow(TWindow* parent, const char* title = nullptr, TModule* module = nullptr);

    void SetChildLayoutMetrics(TWindow& child, const TLayoutMetrics& metrics);
    // False when the child has none (the metrics are left as they are).
    bool GetChildLayoutMetrics(const TWindow& child, TLayoutMetrics& metrics) const;
    bool RemoveChildLayoutMetrics(const TWindow& child);

    // Places every child that has metrics.
    virtual void Layout();
    // Where the metrics put a child within a client area of this size, without moving it;
    // false when the child has no metrics or cannot be placed.
    bool ComputeChildRect(const TWindow& child, TSize client, TRect& rect) const;

    void EvSize(UINT sizeType, const TSize& size);
    const TResponseRow* Find(const TEventInfo& event) const override;

protected:
    void ChildGone(TWindow& child) override;

private:
    struct Placement
    {
        TRect Rect;
        bool bHorizontal = false;
        bool bVertical = false;
    };
    bool IsChild(const TWindow* window) const;
    // Solves every child for a client of the given size.
    std::map<const TWindow*, TRect> Solve(TSize client) const;
    // One axis of one child; false while a window it refers to is not placed yet.
    bool SolveAxis(const TWindow& child, const TLayoutMetrics& metrics, bool horizontal,
                   TSize client, std::map<const TWindow*, Placement>& placed) const;
    int ToPixels(const TLayoutConstraint& constraint, int value, bool horizontal) const;

    std::map<const TWindow*, TLayoutMetrics> Metrics;
};
