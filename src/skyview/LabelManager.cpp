#include "skyview/LabelManager.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogues/AstroObject.h"
#include "platform/TDC.h"
#include "skyview/DisplayParameters.h"
#include "skyview/Label.h"

namespace {

// Steps between the rings of places per logical inch of the surface: 3 pixels at 96 dpi.
constexpr int kRingStepsPerInch = 32;

} // namespace

LabelManager::LabelManager() : ObjectsToAvoid(50, 100)
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
                              const std::vector<TRect>& objectRects)
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
        if (!Collides(index, candidate, objectRects)) {
            label.SetDisplayPoint(candidate.TopLeft());
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

    const int step = dc.GetDeviceCaps(LOGPIXELSX) / kRingStepsPerInch;
    for (std::size_t i = fixed; i < size(); ++i) {
        PlaceLabel(i, parameters, dc, step, objectRects);
    }
    bDirty = false;
}

void LabelManager::Draw(TDC& dc) const
{
    for (const Label* label : *this) {
        if (pHiddenObject != nullptr && label->GetObject() == pHiddenObject) {
            continue;
        }
        label->Draw(dc);
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
