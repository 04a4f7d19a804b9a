#include "platform/TLayoutWindow.h"

#include <algorithm>
#include <optional>

#include "platform/DebugStream.h"
#include "platform/DialogTemplate.h"

namespace {

// The position of an edge (or a size) of a rectangle.
int EdgeOf(const TRect& r, TEdge edge)
{
    switch (edge) {
    case lmLeft:
        return r.left;
    case lmTop:
        return r.top;
    case lmRight:
        return r.right;
    case lmBottom:
        return r.bottom;
    case lmWidth:
        return r.Width();
    case lmHeight:
        return r.Height();
    case lmCenter:
    default:
        return r.left + r.Width() / 2;
    }
}

// The centre of a rectangle along an axis.
int CenterOf(const TRect& r, bool horizontal)
{
    return horizontal ? r.left + r.Width() / 2 : r.top + r.Height() / 2;
}

} // namespace

TLayoutWindow::TLayoutWindow(TWindow* parent, const char* title, TModule* module)
    : TWindow(parent, title, module)
{}

bool TLayoutWindow::IsChild(const TWindow* window) const
{
    const auto& children = GetChildren();
    return std::find(children.begin(), children.end(), window) != children.end();
}

void TLayoutWindow::SetChildLayoutMetrics(TWindow& child, const TLayoutMetrics& metrics)
{
    Metrics[&child] = metrics;
}

bool TLayoutWindow::GetChildLayoutMetrics(const TWindow& child, TLayoutMetrics& metrics) const
{
    auto found = Metrics.find(&child);
    if (found == Metrics.end() || !IsChild(&child)) {
        return false;
    }
    metrics = found->second;
    return true;
}

bool TLayoutWindow::RemoveChildLayoutMetrics(const TWindow& child)
{
    return Metrics.erase(&child) > 0;
}

void TLayoutWindow::ChildGone(TWindow& child)
{
    Metrics.erase(&child);
    // Constraints on the window that went now refer to the parent.
    for (auto& [window, metrics] : Metrics) {
        for (TLayoutConstraint* c : {static_cast<TLayoutConstraint*>(&metrics.X),
                                     static_cast<TLayoutConstraint*>(&metrics.Y),
                                     static_cast<TLayoutConstraint*>(&metrics.Width),
                                     static_cast<TLayoutConstraint*>(&metrics.Height)}) {
            if (c->RelWin == &child) {
                c->RelWin = lmParent;
            }
        }
    }
}

int TLayoutWindow::ToPixels(const TLayoutConstraint& constraint, int value, bool horizontal) const
{
    if (constraint.Units == lmPixels) {
        return value;
    }
    DialogBaseUnits units = DialogBaseUnits::Of(GetWindowFont());
    return horizontal ? units.ToPixelsX(value) : units.ToPixelsY(value);
}

bool TLayoutWindow::SolveAxis(const TWindow& child, const TLayoutMetrics& metrics, bool horizontal,
                              TSize client, std::map<const TWindow*, Placement>& placed) const
{
    const TRect current = child.GetRect();
    const TRect parent(0, 0, client.cx, client.cy);

    // The value a constraint gives its own edge; none while its other window waits.
    auto valueOf = [&](const TLayoutConstraint& c, std::optional<int>& out) -> bool {
        if (c.Relationship == lmAsIs) {
            TEdge edge = c.MyEdge;
            out = edge == lmCenter ? CenterOf(current, horizontal) : EdgeOf(current, edge);
            return true;
        }
        int amount = ToPixels(c, c.Value, horizontal);
        if (c.Relationship == lmAbsolute) {
            out = amount;
            return true;
        }
        TRect other = parent;
        if (c.RelWin != lmParent) {
            if (!IsChild(c.RelWin) || c.RelWin == &child) {
                dbstream << "TLayoutWindow: a constraint refers to a window that is no sibling"
                         << dbendl;
                return false;
            }
            auto found = placed.find(c.RelWin);
            bool ready = found != placed.end() &&
                         (horizontal ? found->second.bHorizontal : found->second.bVertical);
            if (Metrics.count(c.RelWin) && !ready) {
                return false;
            }
            other = ready ? found->second.Rect : c.RelWin->GetRect();
        }
        int edge =
            c.OtherEdge == lmCenter ? CenterOf(other, horizontal) : EdgeOf(other, c.OtherEdge);
        switch (c.Relationship) {
        case lmPercentOf:
            out = int((long long)edge * c.Value / 100);
            break;
        case lmAbove:
            out = edge - amount;
            break;
        case lmBelow:
            out = edge + amount;
            break;
        case lmSameAs:
        default:
            out = edge + amount;
            break;
        }
        return true;
    };

    const TLayoutConstraint& first =
        horizontal ? static_cast<const TLayoutConstraint&>(metrics.X) : metrics.Y;
    const TLayoutConstraint& second =
        horizontal ? static_cast<const TLayoutConstraint&>(metrics.Width) : metrics.Height;
    std::optional<int> a;
    std::optional<int> b;
    if (!valueOf(first, a) || !valueOf(second, b)) {
        return false;
    }
    // Gather what is known of the two edges, the centre and the size, then complete it.
    std::optional<int> low;
    std::optional<int> high;
    std::optional<int> center;
    std::optional<int> size;
    auto note = [&](TEdge edge, int value) {
        switch (edge) {
        case lmLeft:
        case lmTop:
            low = value;
            break;
        case lmRight:
        case lmBottom:
            high = value;
            break;
        case lmCenter:
            center = value;
            break;
        default:
            size = value;
            break;
        }
    };
    note(first.MyEdge, *a);
    note(second.MyEdge, *b);
    if (low && high) {
    } else if (low && size) {
        high = *low + *size;
    } else if (high && size) {
        low = *high - *size;
    } else if (center && size) {
        low = *center - *size / 2;
        high = *low + *size;
    } else if (low && center) {
        high = 2 * *center - *low;
    } else if (high && center) {
        low = 2 * *center - *high;
    } else {
        // Both constraints on one edge: the other keeps its distance.
        int extent = horizontal ? current.Width() : current.Height();
        if (low) {
            high = *low + extent;
        } else if (high) {
            low = *high - extent;
        } else {
            int middle = center ? *center : CenterOf(current, horizontal);
            int width = size ? *size : extent;
            low = middle - width / 2;
            high = *low + width;
        }
    }
    Placement& p = placed[&child];
    if (horizontal) {
        p.Rect.left = *low;
        p.Rect.right = *high;
        p.bHorizontal = true;
    } else {
        p.Rect.top = *low;
        p.Rect.bottom = *high;
        p.bVertical = true;
    }
    return true;
}

std::map<const TWindow*, TRect> TLayoutWindow::Solve(TSize client) const
{
    std::map<const TWindow*, Placement> placed;
    std::vector<std::pair<const TWindow*, const TLayoutMetrics*>> waiting;
    for (const auto& [child, metrics] : Metrics) {
        if (IsChild(child)) {
            waiting.emplace_back(child, &metrics);
        }
    }
    // Each round places what it can; a round that places nothing ends the solving.
    bool progress = true;
    while (progress) {
        progress = false;
        for (auto& [child, metrics] : waiting) {
            auto found = placed.find(child);
            bool horizontalDone = found != placed.end() && found->second.bHorizontal;
            bool verticalDone = found != placed.end() && found->second.bVertical;
            if (!horizontalDone && SolveAxis(*child, *metrics, true, client, placed)) {
                progress = true;
            }
            if (!verticalDone && SolveAxis(*child, *metrics, false, client, placed)) {
                progress = true;
            }
        }
    }
    std::map<const TWindow*, TRect> rects;
    for (const auto& [child, metrics] : waiting) {
        auto found = placed.find(child);
        if (found != placed.end() && found->second.bHorizontal && found->second.bVertical) {
            rects[child] = found->second.Rect;
        } else {
            dbstream << "TLayoutWindow: the constraints of \"" << child->GetWindowText()
                     << "\" refer to each other in a circle; it stays where it is" << dbendl;
        }
    }
    return rects;
}

bool TLayoutWindow::ComputeChildRect(const TWindow& child, TSize client, TRect& rect) const
{
    std::map<const TWindow*, TRect> rects = Solve(client);
    auto found = rects.find(&child);
    if (found == rects.end()) {
        return false;
    }
    rect = found->second;
    return true;
}

void TLayoutWindow::Layout()
{
    std::map<const TWindow*, TRect> rects = Solve(GetClientRect().Size());
    for (TWindow* child : std::vector<TWindow*>(GetChildren())) {
        auto found = rects.find(child);
        if (found == rects.end()) {
            continue;
        }
        const TRect& r = found->second;
        if (child->HWindow) {
            child->SetWindowPos(nullptr, r.left, r.top, r.Width(), r.Height(), SWP_NOZORDER);
        } else {
            child->Attr.X = r.left;
            child->Attr.Y = r.top;
            child->Attr.W = r.Width();
            child->Attr.H = r.Height();
        }
    }
}

void TLayoutWindow::EvSize(UINT sizeType, const TSize& size)
{
    TWindow::EvSize(sizeType, size);
    Layout();
}

const TResponseRow* TLayoutWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{EvRow<WM_SIZE, &TLayoutWindow::EvSize>()};
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}
