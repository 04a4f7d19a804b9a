#pragma once
// Lays out the labels of the objects that a view shows, so that no label covers another, an
// object drawn as a picture, the status text or another labelled object; a label that finds
// no such place is hidden.
//
// The manager keeps its own copies of the objects' labels, so an object may go while its label
// is still drawn. The map calls it in two steps: when the labels are dirty, SetAvoidRect,
// Flush, LoadLabels and Arrange; then Draw in every frame, from the places found last.
//
// Placement. Fixed labels (constellation names) come first, centred on their points, and are
// hidden when they touch the avoided rectangle or leave the draw rectangle. Every other label
// tries up to 20 places around its object, in rings at growing distances (see Candidate),
// and takes the first place that meets no picture-drawn object, no label placed before it and
// no labelled object's point. A place that touches the avoided rectangle ends the search and
// hides the label: the status text is never crossed, not even by a label that would fit
// further out. All pixel units are those of the parameters' surface.
//
// What a place collides with is found through a grid of cells over the draw rectangle, each
// listing the pictures, placed labels and labelled points that reach into it, so that a place
// is checked against its neighbours only. The grid gives exactly the places that checking
// every earlier label would; a layout of only a few labels does that instead.
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "catalogues/AstroList.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TSize.h"

class AstroObject;
class DisplayParameters;
class Label;
class TDC;

class LabelManager : public std::vector<Label*>
{
public:
    // The number of places a label tries.
    static constexpr int kAttempts = 20;
    // Places on one ring: right, left, above left, above right, below left, below right.
    static constexpr int kPlacesPerRing = 6;

    // A layout of this many labels or more looks for collisions through the grid.
    static constexpr std::size_t kGridFromLabels = 32;

    // `gridFrom`: from how many labels on the grid is used (0 always, the largest size_t
    // never).
    explicit LabelManager(std::size_t gridFrom = kGridFromLabels);
    virtual ~LabelManager();
    LabelManager(const LabelManager&) = delete;
    LabelManager& operator=(const LabelManager&) = delete;

    // Forgets the objects to avoid and deletes every label.
    virtual void Flush();

    // The rectangle that no label may touch (the status text); an empty one avoids nothing.
    void SetAvoidRect(const TRect& rect) { AvoidRect = rect; }
    const TRect& GetAvoidRect() const { return AvoidRect; }
    void SetDirty() { bDirty = true; }
    bool IsDirty() const { return bDirty; }

    // Copies the label of every labelled object in `objects`, in list order, and notes the
    // objects that cover a rectangle.
    void LoadLabels(DisplayParameters& parameters, AstroList& objects);
    // Drops the labels whose object's point is `hidden` (below the horizon, say), and stops
    // avoiding pictures whose objects stand there.
    void LeaveOut(const std::function<bool(const TPoint&)>& hidden);
    // Places every label, or hides it, and clears the dirty flag. Without a surface to measure
    // on, every label is hidden and the flag stays.
    void Arrange(DisplayParameters& parameters);
    // Draws the labels, leaving out those of the hidden object, with lines as wide as the
    // surface of the last layout needs.
    void Draw(TDC& dc) const;

    // The first label whose rectangle holds `point`, or null; hidden labels hold nothing.
    Label* FindLabelAt(const TPoint& point) const;
    // The object whose label is not drawn for now (a blinking object), or null for none.
    void SetHiddenObject(AstroObject* object) { pHiddenObject = object; }
    AstroObject* GetHiddenObject() const { return pHiddenObject; }
    const AstroList& GetObjectsToAvoid() const { return ObjectsToAvoid; }

    // The rectangle of `size` for one attempt (0 to 19) around `anchor`. The ring is
    // attempt / 6 + 1 and the distance from the anchor step * ring + first; the place on the
    // ring is attempt % 6, in the order right, left, above left, above right, below left,
    // below right. Right and left are centred on the anchor's row; the corners keep the
    // distance both across and along.
    static TRect Candidate(int attempt, const TPoint& anchor, const TSize& size, int first,
                           int step);
    // Whether two rectangles share a pixel. A rectangle without pixels (a hidden label's, an
    // unset avoided rectangle) meets nothing.
    static bool Overlaps(const TRect& a, const TRect& b);
    // Whether `inner` lies within `outer`, its edges on or inside those of `outer`.
    static bool Contains(const TRect& outer, const TRect& inner);

private:
    // Moves the fixed labels to the front by swapping; returns their number.
    std::size_t GatherFixedLabels();
    void PlaceFixedLabel(Label& label, TDC& dc, const TRect& screen);
    class Grid;
    // Tries the places of label `index` against the labels before it, through the grid when
    // there is one.
    void PlaceLabel(std::size_t index, DisplayParameters& parameters, TDC& dc, int step,
                    const std::vector<TRect>& objectRects, Grid* grid);
    bool Collides(std::size_t index, const TRect& candidate,
                  const std::vector<TRect>& objectRects) const;
    void DeleteLabels();

    bool bDirty = true;
    AstroList ObjectsToAvoid;
    TRect AvoidRect;
    AstroObject* pHiddenObject = nullptr;
    // Kept from one layout to the next, so that its cells keep their room.
    std::unique_ptr<Grid> pGrid;
    std::size_t nGridFrom;
    int nLineWidth = 1;
};
