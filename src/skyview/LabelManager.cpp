#include "skyview/LabelManager.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "catalogues/AstroObject.h"
#include "platform/TDC.h"
#include "skyview/DisplayParameters.h"
#include "skyview/Label.h"

namespace {

// Steps between the rings of places per logical inch of the surface: 3 pixels at 96 dpi.
constexpr int kRingStepsPerInch = 32;

// A cell of the grid, in pixels: a label's height high and half a short name wide, so that a
// place looks into about six cells holding a few points and rectangles each.
constexpr int kCellWidth = 32;
constexpr int kCellHeight = 16;

} // namespace

// Cells over an area, each holding the rectangles and the labelled points that reach into it.
// What lies outside the area belongs to the cells of its edge, and a place looked up outside
// it looks there too: the cell of a coordinate only ever grows with it, so two things that
// share a pixel always share a cell. A point is kept as the rectangle of its pixel, which a
// place overlaps exactly when it holds the point.
class LabelManager::Grid
{
public:
    // Empties the cells, keeping their room, for a layout over `area`.
    void Reset(const TRect& area)
    {
        Area = area;
        nColumns = std::max(1, (area.Width() + kCellWidth - 1) / kCellWidth);
        nRows = std::max(1, (area.Height() + kCellHeight - 1) / kCellHeight);
        aCells.resize(std::size_t(nColumns) * std::size_t(nRows));
        for (std::vector<Item>& cell : aCells) {
            cell.clear();
        }
    }

    // An empty rectangle overlaps nothing and is not kept.
    void AddRect(const TRect& rect)
    {
        if (!rect.IsEmpty()) {
            Add(Item{rect, kNoLabel});
        }
    }
    void AddPoint(const TPoint& point, std::size_t label)
    {
        Add(Item{TRect(point.x, point.y, point.x + 1, point.y + 1), label});
    }

    // Whether `candidate` overlaps a rectangle or holds the point of a label other than
    // `label`.
    bool Collides(const TRect& candidate, std::size_t label) const
    {
        if (candidate.IsEmpty()) {
            return false;
        }
        const int right = Column(candidate.right - 1LL);
        const int bottom = Row(candidate.bottom - 1LL);
        for (int row = Row(candidate.top); row <= bottom; ++row) {
            for (int column = Column(candidate.left); column <= right; ++column) {
                for (const Item& item : aCells[CellIndex(column, row)]) {
                    // One branch per item: the four sides are mostly a coin toss each.
                    const TRect& r = item.Rect;
                    const bool overlaps = (r.right > candidate.left) & (r.left < candidate.right) &
                                          (r.bottom > candidate.top) & (r.top < candidate.bottom);
                    if (overlaps && item.nLabel != label) {
                        return true;
                    }
                }
            }
        }
        return false;
    }

private:
    static constexpr std::size_t kNoLabel = std::size_t(-1);
    struct Item
    {
        TRect Rect;
        std::size_t nLabel;
    };

    void Add(const Item& item)
    {
        const int right = Column(item.Rect.right - 1LL);
        const int bottom = Row(item.Rect.bottom - 1LL);
        for (int row = Row(item.Rect.top); row <= bottom; ++row) {
            for (int column = Column(item.Rect.left); column <= right; ++column) {
                aCells[CellIndex(column, row)].push_back(item);
            }
        }
    }
    int Column(long long x) const
    {
        return int(std::clamp<long long>((x - Area.left) / kCellWidth, 0, nColumns - 1));
    }
    int Row(long long y) const
    {
        return int(std::clamp<long long>((y - Area.top) / kCellHeight, 0, nRows - 1));
    }
    std::size_t CellIndex(int column, int row) const
    {
        return std::size_t(row) * std::size_t(nColumns) + std::size_t(column);
    }

    TRect Area;
    int nColumns = 1;
    int nRows = 1;
    std::vector<std::vector<Item>> aCells;
};

LabelManager::LabelManager(std::size_t gridFrom)
    : ObjectsToAvoid(50, 100), pGrid(std::make_unique<Grid>()), nGridFrom(gridFrom)
{}

LabelManager::~LabelManager()
{
    DeleteLabels();
}

void LabelManager::DeleteLabels()
{
    for (Label* label : *this) {
        delete label;
    }
    clear();
}

void LabelManager::Flush()
{
    ObjectsToAvoid.Flush();
    DeleteLabels();
}

void LabelManager::LoadLabels(DisplayParameters& parameters, AstroList& objects)
{
    for (AstroObject* object : objects) {
        if (object == nullptr) {
            continue;
        }
        if (object->IsLabeled(parameters)) {
            if (const Label* label = object->GetLabel(parameters)) {
                push_back(new Label(*label));
            }
        }
        if (object->HasDisplayRect()) {
            ObjectsToAvoid.Add(object);
        }
    }
}

void LabelManager::LeaveOut(const std::function<bool(const TPoint&)>& hidden)
{
    std::size_t kept = 0;
    for (Label* label : *this) {
        if (hidden(label->GetObjectPoint())) {
            delete label;
        } else {
            (*this)[kept++] = label;
        }
    }
    resize(kept);
    for (std::size_t i = ObjectsToAvoid.GetCount(); i-- > 0;) {
        if (hidden(ObjectsToAvoid[i]->GetDisplayPoint())) {
            ObjectsToAvoid.Detach(i);
        }
    }
}

bool LabelManager::Overlaps(const TRect& a, const TRect& b)
{
    return !a.IsEmpty() && !b.IsEmpty() && b.right > a.left && b.left < a.right &&
           b.bottom > a.top && b.top < a.bottom;
}

bool LabelManager::Contains(const TRect& outer, const TRect& inner)
{
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

TRect LabelManager::Candidate(int attempt, const TPoint& anchor, const TSize& size, int first,
                              int step)
{
    const int ring = attempt / kPlacesPerRing + 1;
    const int distance = step * ring + first;
    const int rightX = anchor.x + distance;
    const int leftX = anchor.x - (size.cx + distance);
    const int middleY = anchor.y - size.cy / 2;
    const int aboveY = anchor.y - (size.cy + distance);
    const int belowY = anchor.y + distance;
    TPoint topLeft;
    switch (attempt % kPlacesPerRing) {
    case 0:
        topLeft = TPoint(rightX, middleY);
        break;
    case 1:
        topLeft = TPoint(leftX, middleY);
        break;
    case 2:
        topLeft = TPoint(leftX, aboveY);
        break;
    case 3:
        topLeft = TPoint(rightX, aboveY);
        break;
    case 4:
        topLeft = TPoint(leftX, belowY);
        break;
    default:
        topLeft = TPoint(rightX, belowY);
        break;
    }
    return TRect(topLeft, size);
}

std::size_t LabelManager::GatherFixedLabels()
{
    std::size_t fixed = 0;
    for (std::size_t i = 0; i < size(); ++i) {
        if ((*this)[i]->IsFixed()) {
            std::swap((*this)[fixed], (*this)[i]);
            ++fixed;
        }
    }
    return fixed;
}

void LabelManager::PlaceFixedLabel(Label& label, TDC& dc, const TRect& screen)
{
    label.Show();
    label.Measure(dc);
    const TSize size = label.GetSize();
    const TPoint& point = label.GetObjectPoint();
    // Centred on its point; halves of odd sizes are cut towards zero with the coordinate.
    label.SetDisplayPoint(
        TPoint(int(std::trunc(point.x - size.cx / 2.0)), int(std::trunc(point.y - size.cy / 2.0))));
    const TRect rect = label.GetDisplayRect();
    if (Overlaps(rect, AvoidRect) || !Contains(screen, rect)) {
        label.Hide();
    }
}

bool LabelManager::Collides(std::size_t index, const TRect& candidate,
                            const std::vector<TRect>& objectRects) const
{
    for (const TRect& rect : objectRects) {
        if (Overlaps(candidate, rect)) {
            return true;
        }
    }
    for (std::size_t j = 0; j < index; ++j) {
        if (Overlaps(candidate, (*this)[j]->GetDisplayRect())) {
            return true;
        }
    }
    for (std::size_t j = 0; j < size(); ++j) {
        if (j != index && candidate.Contains((*this)[j]->GetObjectPoint())) {
            return true;
        }
    }
    return false;
}

void LabelManager::PlaceLabel(std::size_t index, DisplayParameters& parameters, TDC& dc, int step,
                              const std::vector<TRect>& objectRects, Grid* grid)
{
    Label& label = *(*this)[index];
    label.Show();
    label.Measure(dc);
    const TSize size = label.GetSize();
    const TPoint anchor = label.GetObjectPoint();

    // A picture-drawn object pushes its label out beyond half its larger side.
    int radius = 0;
    AstroObject* object = label.GetObject();
    if (object != nullptr && object->HasDisplayRect()) {
        const TRect rect = object->GetDisplayRect(parameters);
        radius = std::max(rect.Width(), rect.Height()) / 2;
    }
    const int first = radius != 0 ? radius : step;

    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const TRect candidate = Candidate(attempt, anchor, size, first, step);
        if (Overlaps(candidate, AvoidRect)) {
            break;
        }
        if (grid ? !grid->Collides(candidate, index) : !Collides(index, candidate, objectRects)) {
            label.SetDisplayPoint(candidate.TopLeft());
            if (grid) {
                grid->AddRect(label.GetDisplayRect());
            }
            return;
        }
    }
    label.Hide();
}

void LabelManager::Arrange(DisplayParameters& parameters)
{
    if (parameters.pDC == nullptr) {
        for (Label* label : *this) {
            label->Hide();
        }
        return;
    }
    TDC& dc = *parameters.pDC;
    const TRect screen = parameters.DrawRect;

    const std::size_t fixed = GatherFixedLabels();
    for (std::size_t i = 0; i < fixed; ++i) {
        PlaceFixedLabel(*(*this)[i], dc, screen);
    }

    // The pictures stay where they are while labels are placed: ask for their rectangles once.
    std::vector<TRect> objectRects;
    objectRects.reserve(ObjectsToAvoid.GetCount());
    for (AstroObject* object : ObjectsToAvoid) {
        objectRects.push_back(object->GetDisplayRect(parameters));
    }

    // The grid starts with the pictures, the fixed labels as placed and every label's point;
    // the others' rectangles join it as they are placed.
    Grid* grid = nullptr;
    if (size() >= nGridFrom) {
        grid = pGrid.get();
        grid->Reset(screen);
        for (const TRect& rect : objectRects) {
            grid->AddRect(rect);
        }
        for (std::size_t i = 0; i < size(); ++i) {
            grid->AddPoint((*this)[i]->GetObjectPoint(), i);
            if (i < fixed) {
                grid->AddRect((*this)[i]->GetDisplayRect());
            }
        }
    }

    const int step = dc.GetDeviceCaps(LOGPIXELSX) / kRingStepsPerInch;
    for (std::size_t i = fixed; i < size(); ++i) {
        PlaceLabel(i, parameters, dc, step, objectRects, grid);
    }
    nLineWidth = parameters.GetLineWidth();
    bDirty = false;
}

void LabelManager::Draw(TDC& dc) const
{
    for (const Label* label : *this) {
        if (pHiddenObject != nullptr && label->GetObject() == pHiddenObject) {
            continue;
        }
        label->Draw(dc, nLineWidth);
    }
}

Label* LabelManager::FindLabelAt(const TPoint& point) const
{
    for (Label* label : *this) {
        if (label->GetDisplayRect().Contains(point)) {
            return label;
        }
    }
    return nullptr;
}
